#include "files/program.h"

#include "support/languagefolder.h"
#include "walk/mutations.h"
#include "walk/walker.h"

#include <QtTest>

namespace {

constexpr int usualDocuments = 20;
constexpr int stepsBetween = 40;
constexpr int documentsOfAWalk = 20;
constexpr quint32 firstSeed = 1122;

/// CALORA_FILES_DOCUMENTS, where set, asks for more.
int documentCount()
{
    const int asked = qEnvironmentVariableIntValue("CALORA_FILES_DOCUMENTS");
    return asked > 0 ? asked : usualDocuments;
}

QString name(int number) { return QStringLiteral("%1.json").arg(number); }

QStringList errors(const QJsonObject &verdict)
{
    return program::findings(verdict).filter(QRegularExpression(QStringLiteral("^error ")));
}

/// Whether the wizard, used by hand, calls the document complete once every page has been seen with its
/// sections open.
bool isComplete(Installer *installer, const QJsonDocument &document)
{
    for (QPushButton *header :
         installer->window.dialog.findChildren<QPushButton *>(QStringLiteral("hideButton"))) {
        header->click();
    }
    installer->open(document);
    installer->goToDipSwitches();
    installer->goToSettings();
    for (const char *tab :
         {"functionTabButton", "userTabButton", "serviceTabButton", "installationTabButton"}) {
        installer->tab(tab);
    }
    return installer->window.dialog.stepsDone();
}

} // namespace

// `calora-files check` and the wizard itself.
class TestFilesWalk : public QObject
{
    Q_OBJECT

private slots:
    void savedDocumentsHaveNoErrors();
    void checkAndWizardAgree();
};

void TestFilesWalk::savedDocumentsHaveNoErrors()
{
    int checked = 0;
    int warned = 0;
    for (quint32 seed = firstSeed; checked < documentCount(); ++seed) {
        const program::Folder folder;
        QStringList files;
        Walker walker(seed, Walker::Opens::Whole);
        while (files.size() < qMin(documentsOfAWalk, documentCount() - checked)) {
            for (int step = 0; step < stepsBetween || walker.document().isEmpty(); ++step) {
                walker.step();
            }
            files.append(folder.put(name(files.size()), walker.document()));
        }
        const auto verdicts = program::check(files);
        QCOMPARE(verdicts.size(), files.size());
        for (const QJsonObject &verdict : verdicts) {
            const QJsonArray findings = verdict.value(QLatin1String("findings")).toArray();
            QVERIFY2(errors(verdict).isEmpty(), QJsonDocument(findings).toJson().constData());
            warned += findings.isEmpty() ? 0 : 1;
        }
        checked += files.size();
    }
    std::printf("%d documents without errors, %d with warnings\n", checked, warned);
}

void TestFilesWalk::checkAndWizardAgree()
{
    const program::Folder folder;
    QRandomGenerator random(firstSeed);
    QStringList files;
    QVector<QJsonDocument> documents;
    while (files.size() < documentCount()) {
        const QJsonDocument document = QJsonDocument::fromJson(mutations::file(random));
        if (document.isObject()) {
            files.append(folder.put(name(files.size()), document));
            documents.append(document);
        }
    }
    const auto verdicts = program::check(files);
    QCOMPARE(verdicts.size(), files.size());
    int complete = 0;
    for (int number = 0; number < files.size(); ++number) {
        Installer installer;
        const QJsonValue verdict = verdicts.value(name(number)).value(QLatin1String("complete"));
        QVERIFY(verdict.isBool());
        const bool said = verdict.toBool();
        QVERIFY2(said == isComplete(&installer, documents.at(number)),
                 documents.at(number).toJson().constData());
        complete += said ? 1 : 0;
    }
    std::printf("%d of %d complete\n", complete, files.size());
    QVERIFY(complete > 0 && complete < files.size());
}

CALORA_TEST_MAIN(TestFilesWalk)
#include "tst_fileswalk.moc"
