// Steps and what must hold after each of them. What a step does lies in actions.cpp.

#include "walk/walker.h"

#include "support/languagefolder.h"
#include "support/schema.h"
#include "walk/effects.h"
#include "walk/exceptions.h"

#include <QFile>

namespace {

/// Values that no page may ever write.
const QStringList &untouched()
{
    static const QStringList paths = [] {
        QVariantMap others = documents::changes(QJsonDocument(), documents::standard(QStringLiteral("R32")));
        for (const QString &path : schema::written()) {
            others.remove(path);
        }
        return others.keys();
    }();
    return paths;
}

/// Whether the path may change when `allowed` may be written.
bool covers(const QStringList &allowed, const QString &path)
{
    if (allowed.contains(path)) {
        return true;
    }
    const QString group = path + QLatin1Char('.');
    return std::any_of(allowed.begin(), allowed.end(),
                       [&](const QString &other) { return other.startsWith(group); })
        && exceptions::note("below a missing group");
}

} // namespace

Walker::Languages::Languages()
{
    languagefolder::restore();
    const QDir delivered(QStringLiteral(LANGUAGES_DIR));
    const auto files = delivered.entryList({QStringLiteral("*.json")});
    for (const QString &file : files) {
        testfiles::put(languagefolder::file(file), testfiles::content(delivered.filePath(file)));
    }
    testfiles::put(languagefolder::file(QStringLiteral("Marked.json")),
                   languagefolder::marked(QStringLiteral("~")));
}

Walker::Walker(quint32 seed, Opens whatOpens)
    : random(seed)
    , opens(whatOpens)
    , scene(installer.window.dialog)
    , marks(installer.window.dialog, scene)
{
    const auto widgets = installer.window.dialog.findChildren<QWidget *>();
    for (const char *page : {"productselectpage", "dipswitchsettingpage", "settingpage", "validationpage"}) {
        Window::find(&installer.window.dialog, page)->installEventFilter(&displayShows);
    }
    for (QWidget *widget : widgets) {
        const QString name = Scene::nameOf(widget);
        const bool isDrawn = widget->objectName().startsWith(QLatin1String("DipSwitch"));
        if (!name.isEmpty()
            && (qobject_cast<QRadioButton *>(widget) != nullptr
                || qobject_cast<QComboBox *>(widget) != nullptr
                || (qobject_cast<QLineEdit *>(widget) != nullptr
                    && !widget->objectName().startsWith(QLatin1String("qt_")))
                || (isDrawn && qobject_cast<QPushButton *>(widget) != nullptr))) {
            controls.append({name, widget});
            hasUntold |= !effects::knows(name) && !effects::needsNoRow(name);
        }
    }
}

QStringList Walker::controlNames() const
{
    QStringList names;
    for (const auto &[name, widget] : controls) {
        names.append(name);
    }
    return names;
}

QStringList Walker::step()
{
    scene.look();
    marks.before();
    const QJsonDocument before = scene.document();
    displayShows.count = 0;
    Action action = act();
    if (stepNumber % 8 == 0) {
        QCoreApplication::processEvents();
    }
    action.happening.shownAgain = displayShows.count > 0;
    const QString &touched = action.happening.name;
    ++stepNumber;
    lastSteps.append(QStringLiteral("%1 %2").arg(stepNumber).arg(action.text));
    if (lastSteps.size() > 20) {
        lastSteps.removeFirst();
    }
    ++tally[action.text.section(QLatin1Char(' '), 0, 0)];

    QStringList mayWrite;
    if (action.happening.kind == Happening::Control) {
        action.happening.loaded = effects::loadsBy(touched);
        // By what the document held before the touch.
        mayWrite = effects::ofControl(touched, scene);
    }
    scene.look();
    marks.after(action.happening);
    const QStringList loaded = marks.shownPages();
    if (!loaded.isEmpty()) {
        mayWrite += effects::ofLoads(loaded, scene);
        selections.loaded(loaded);
    }
    if (hasUntold) {
        mayWrite += effects::untold();
    }
    selections.touched(touched, action.happening.loaded);
    messages::clear();
    return action.complaints + documentComplaints(action, before, mayWrite)
        + marks.complaints(action.happening) + selections.complaints(scene);
}

QStringList Walker::documentComplaints(const Action &action, const QJsonDocument &before,
                                       const QStringList &mayWrite) const
{
    const QJsonDocument &old = action.replacement.value_or(before);
    if (old == scene.document()) {
        return {};
    }
    QStringList result;
    const QVariantMap changes = documents::changes(old, scene.document());
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (untouched().contains(change.key())) {
            result.append(QStringLiteral("%1 is never written").arg(change.key()));
        } else if (!covers(mayWrite, change.key())) {
            result.append(QStringLiteral("%1 became \"%2\"").arg(change.key(), change.value().toString()));
        }
    }
    return result;
}
