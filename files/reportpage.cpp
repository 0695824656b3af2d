#include "files/reportpage.h"

#include "files/catalogue.h"
#include "files/printing.h"
#include "files/reading.h"
#include "files/shape.h"
#include "files/texts.h"

#include <QFile>
#include <QJsonDocument>

#include <array>

namespace {

constexpr auto accent = "#a50034";
constexpr auto unlit = "#d9d9d9";
// A heading is as high as two rows.
constexpr int headingHeight = 2;
constexpr int fewRows = 3;
// What an unset number is in the file.
constexpr int unset = -9999;

QString content(const char *name)
{
    QFile file(QStringLiteral(":/files/") + QLatin1String(name));
    file.open(QIODevice::ReadOnly);
    return QString::fromUtf8(file.readAll());
}

/// A text of a file or a language, as HTML.
QString escaped(const QString &text) { return printing::plain(text).toHtmlEscaped(); }

/// A page of the wizard with the rows of its settings.
struct Group {
    QString caption;
    QStringList rows;
};

class Writer
{
public:
    Writer(const ReportPage &thePage, bool isForBrowser)
        : page(thePage)
        , forBrowser(isForBrowser)
        , view(thePage.texts, thePage.fahrenheit, thePage.document)
        , defaults(shape::defaultFor(thePage.document))
        , viewOfDefaults(thePage.texts, thePage.fahrenheit, defaults)
        , words(wordsOf(thePage.language))
    {
    }

    QString word(const char *key) const { return escaped(words.value(QLatin1String(key)).toString()); }

    QString body() const
    {
        return QStringLiteral("<h1>%1</h1>%2%3%4%5")
            .arg(word("report"), head(), switches(), columns(), signatures());
    }

private:
    static QJsonObject wordsOf(const QString &language)
    {
        const QJsonObject all = QJsonDocument::fromJson(content("words.json").toUtf8()).object();
        const QStringList names = all.keys();
        for (const QString &each : names) {
            if (each.normalized(QString::NormalizationForm_C)
                    .compare(language.normalized(QString::NormalizationForm_C), Qt::CaseInsensitive)
                == 0) {
                return all.value(each).toObject();
            }
        }
        return all.value(QLatin1String("English")).toObject();
    }

    QString value(const char *path) const
    {
        const Setting *setting = catalogue::find(QLatin1String(path), view);
        const QString text = catalogue::shown(*setting, page.document, view);
        const QJsonValue stored = reading::at(page.document, QLatin1String(path));
        if (!text.isEmpty()) {
            return escaped(reading::cut(text));
        }
        const bool isNone = stored.isUndefined() || stored == QLatin1String("") || stored == unset;
        return isNone ? none() : escaped(reading::told(stored));
    }

    static QString none() { return QStringLiteral("–"); }

    QString date() const
    {
        const auto part = [this](const char *name) {
            return reading::at(page.document,
                               QStringLiteral("SettingInfo.user.DateInfo.") + QLatin1String(name))
                .toInt(-1);
        };
        const int year = part("year");
        if (year < 0 || part("month") < 0 || part("mday") < 0) {
            return none();
        }
        return QStringLiteral("%1-%2-%3")
            .arg(year)
            .arg(part("month"), 2, 10, QLatin1Char('0'))
            .arg(part("mday"), 2, 10, QLatin1Char('0'));
    }

    QString head() const
    {
        const auto cell = [this](const char *key, const QString &text) {
            return QStringLiteral("<td class=\"quiet\">%1</td><td>%2</td>")
                .arg(escaped(page.texts.text(key)), text);
        };
        const QString contact = QStringLiteral("%1, %2, %3")
                                    .arg(value("SettingInfo.svc.svcContact.company"),
                                         value("SettingInfo.svc.svcContact.installerName"),
                                         value("SettingInfo.svc.svcContact.phoneNumber"));
        return QStringLiteral("<table class=\"head\" width=\"100%\"><tr>%1%2%3</tr><tr>%4</tr></table>")
            .arg(cell("Producttype", value("product")), cell("RefrigerantType", value("IduFuncList.isR32")),
                 cell("Date", date()),
                 QStringLiteral("<td class=\"quiet\">%1</td><td colspan=\"5\">%2</td>")
                     .arg(escaped(page.texts.text("ServiceContact")), contact));
    }

    /// The page leaves the switch of the flow detection as it was drawn until somebody chooses; a report
    /// mustn't.
    bool isOn(const QString &name) const
    {
        const QString flow = reading::at(page.document, QStringLiteral("IduFuncList.is_flow_switch"))
                                 .toString();
        return name == QLatin1String("DipSwitch25") ? flow.toUpper() == QLatin1String("SET")
                                                    : page.answer.switches.value(name);
    }

    /// As on the board: a knob above is on.
    QString switches() const
    {
        QString banks;
        for (const char *bank : {"1", "2", "3"}) {
            QString numbers;
            QString upper;
            QString lower;
            for (int number = 1; number <= 8; ++number) {
                const QString name = QStringLiteral("DipSwitch%1%2").arg(QLatin1String(bank)).arg(number);
                if (!page.answer.switches.contains(name)) {
                    continue;
                }
                const bool on = isOn(name);
                const auto knob = [](bool here) {
                    return QStringLiteral(
                               "<td bgcolor=\"%1\" style=\"background-color:%1\">&nbsp;&nbsp;</td>")
                        .arg(QLatin1String(here ? accent : unlit));
                };
                upper += knob(on);
                lower += knob(!on);
                numbers += QStringLiteral("<td align=\"center\">%1</td>").arg(number);
            }
            if (!numbers.isEmpty()) {
                banks += QStringLiteral("<td><table class=\"bank\" "
                                        "cellspacing=\"2\"><tr><td>ON</td>%1</tr><tr><td></td>%2</tr>"
                                        "<tr><td>SW%3</td>%4</tr></table></td>")
                             .arg(upper, lower, QLatin1String(bank), numbers);
            }
        }
        return heading(word("switches")) + QStringLiteral("<table><tr>%1</tr></table>").arg(banks);
    }

    QString row(const Setting &setting) const
    {
        const QString path = QLatin1String(setting.path);
        const QString text = value(setting.path);
        const QString before = catalogue::shown(*catalogue::find(path, viewOfDefaults), defaults,
                                                viewOfDefaults);
        // The half of the day is told by its hour.
        const bool changed = reading::at(page.document, path) != reading::at(defaults, path)
            || catalogue::shown(setting, page.document, view) != before;
        const QString told = changed
            ? QStringLiteral("<span class=\"changed\">•&nbsp;%1</span> <span class=\"quiet\">(%2)</span>")
                  .arg(text, escaped(before))
            : text;
        return QStringLiteral(
                   "<tr><td class=\"quiet\">%1</td><td class=\"value\" align=\"right\">%2</td></tr>")
            .arg(escaped(catalogue::caption(setting, view)), told);
    }

    /// What the pages show, less what stands above.
    std::vector<Group> groups() const
    {
        std::vector<Group> all;
        for (const Setting *setting : page.answer.offered) {
            const QString name = QLatin1String(setting->path);
            if (name.contains(QLatin1String("svcContact")) || name.contains(QLatin1String("DateInfo"))) {
                continue;
            }
            const QString caption = escaped(catalogue::pageCaption(*setting, page.texts));
            if (all.empty() || all.back().caption != caption) {
                all.push_back({caption, {}});
            }
            all.back().rows.append(row(*setting));
        }
        return all;
    }

    /// The rows in two columns of the same height; a page that goes on in the second is named again there.
    QString columns() const
    {
        const std::vector<Group> all = groups();
        int height = 0;
        for (const Group &group : all) {
            height += headingHeight + group.rows.size();
        }
        std::array<QString, 2> columns;
        int filled = 0;
        for (const Group &group : all) {
            filled += headingHeight;
            const int room = qBound(0, (height + 1) / 2 - filled, group.rows.size());
            // A heading never stands alone, nor does a last row.
            const int here = room < fewRows          ? 0
                : group.rows.size() - room < fewRows ? group.rows.size()
                                                     : room;
            columns[0] += table(group.caption, group.rows.mid(0, here));
            columns[1] += table(group.caption, group.rows.mid(here));
            filled += group.rows.size();
        }
        return QStringLiteral(
                   "<table class=\"columns\" width=\"100%\"><tr><td valign=\"top\" width=\"49%\">%1</td>"
                   "<td width=\"2%\"></td><td valign=\"top\" width=\"49%\">%2</td></tr></table>"
                   "<p class=\"quiet\" style=\"font-size:7pt\"><span class=\"changed\">•</span> %3</p>")
            .arg(columns[0], columns[1], word("changed"));
    }

    QString table(const QString &caption, const QStringList &rows) const
    {
        return rows.isEmpty() ? QString()
                              : heading(caption)
                + QStringLiteral("<table class=\"settings\" width=\"100%\" cellspacing=\"0\">%1</table>")
                      .arg(rows.join(QString()));
    }

    /// Qt draws headings of its own size.
    QString heading(const QString &text) const
    {
        return QString(forBrowser ? QStringLiteral("<h2>%1</h2>")
                                  : QStringLiteral("<p class=\"page\">%1</p>"))
            .arg(text);
    }

    QString signatures() const
    {
        const auto cell = [this](const char *key) {
            return QStringLiteral("<td width=\"31%\" style=\"border-top:1px solid #222222\">%1</td>")
                .arg(word(key));
        };
        return QStringLiteral(
                   "<p>&nbsp;</p><table class=\"signature\" width=\"100%\"><tr>%1<td width=\"3%\"></td>%2<td "
                   "width=\"3%\"></td>%3</tr></table>")
            .arg(cell("place"), cell("installer"), cell("customer"));
    }

    const ReportPage &page;
    const bool forBrowser;
    const View view;
    const QJsonObject defaults;
    const View viewOfDefaults;
    const QJsonObject words;
};

} // namespace

QString ReportPage::html(bool forBrowser) const
{
    const Writer writer(*this, forBrowser);
    return QStringLiteral(
               "<!DOCTYPE html>\n<html lang=\"%1\"><head><meta charset=\"utf-8\"><title>%2</title>\n"
               "<style>%3%4</style></head>\n<body>%5</body></html>\n")
        .arg(writer.word("lang"), writer.word("report"), content("report.css"),
             forBrowser ? content("browser.css") : QString(), writer.body());
}
