// A settings file is checked, compared with the defaults and told in a report, without the pages. An input is
// the file itself, or in the form of script.h with the base "R32" or "R410".

#include "fuzz/script.h"
#include "fuzz/target.h"

#include "files/catalogue.h"
#include "files/check.h"
#include "files/diff.h"
#include "files/printing.h"
#include "files/reading.h"
#include "files/reportpage.h"
#include "files/shape.h"
#include "support/documents.h"
#include "support/schema.h"

#include <QJsonDocument>

namespace {

void beSilent(QtMsgType, const QMessageLogContext &, const QString &) {}

bool steers(const QString &text)
{
    return std::any_of(text.begin(), text.end(),
                       [](QChar each) { return each.category() == QChar::Other_Control; });
}

class Checks : public Target
{
public:
    Checks();

    void run(const QByteArray &input) override;
    QByteArray anyBase(Dice &dice) const override { return dice.once(2) ? "R32" : "R410"; }
    QByteArray anyPath(Dice &dice) const override { return dice.pick(paths); }
    QByteArray anyValue(Dice &dice, const QByteArray &path) const override;

private:
    void report(const QJsonObject &document);

    Checker checker{false};
    Texts texts = Texts::keys();
    Wizard::Answer everything;
    QVector<QByteArray> paths;
};

Checks::Checks()
{
    qInstallMessageHandler(beSilent);
    for (const Setting &setting : catalogue::settings()) {
        everything.offered.push_back(&setting);
    }
    for (const QString &path : schema::written()) {
        paths.append(path.toUtf8());
    }
    paths += {"ExtSysInfo.error", "OperInfo.setTempAir",  "mine",
              "SettingInfo.user", "SettingInfo.mine.own", "rsv"};
}

void Checks::run(const QByteArray &input)
{
    const Script script = Script::parse(input);
    const bool isScript = script.base == "R32" || script.base == "R410";
    const QByteArray content = isScript
        ? QJsonDocument(
              withLines(documents::standard(QString::fromLatin1(script.base)).object(), script.lines))
              .toJson()
        : input;
    const Reading reading = reading::parse(content);
    const Verdict verdict = checker.check(reading);
    if (reading.document.has_value() != verdict.trouble.isEmpty()) {
        fail("a file is usable and isn't", verdict.trouble.toUtf8());
    }
    for (const Finding &finding : verdict.findings) {
        if (finding.what.isEmpty() || steers(printing::plain(finding.path + finding.value))) {
            fail("a finding says nothing, or steers a terminal", finding.path.toUtf8());
        }
    }
    if (reading.document) {
        report(*reading.document);
    }
}

void Checks::report(const QJsonObject &document)
{
    const auto own = diff::compare(document, document, texts, false);
    if (!own.empty()) {
        fail("a file differs from itself", own.front().path.toUtf8());
    }
    diff::compare(shape::defaultFor(document), document, texts, true);
    const QString html = ReportPage{document, everything, texts, QString(), true}.html(true);
    for (const char *markup : {"<script", "<img", "<a ", "<!--"}) {
        if (html.contains(QLatin1String(markup))) {
            fail("markup of a file is markup of its report", html.toUtf8());
        }
    }
}

QByteArray Checks::anyValue(Dice &dice, const QByteArray &) const
{
    static const QVector<QByteArray> values{R"("<script>")",
                                            R"("<img src=x>")",
                                            R"("<!--")",
                                            R"("\u001b[2J")",
                                            R"("SET")",
                                            R"("STEP9")",
                                            "1e400",
                                            "-9999",
                                            "2147483648",
                                            "{}",
                                            "[]",
                                            "null",
                                            R"("")",
                                            "1.5"};
    return dice.once(2) ? dice.absurdValue() : dice.pick(values);
}

} // namespace

std::unique_ptr<Target> makeTarget() { return std::make_unique<Checks>(); }
