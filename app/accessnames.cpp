#include "app/accessnames.h"

#include "app/maindialog.h"
#include "app/opencontrols.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QRegularExpression>

#include <algorithm>

namespace {

QString roleOf(const QWidget *widget) { return widget->property("role").toString(); }

QList<QLabel *> labelsOf(const QWidget *row)
{
    return row->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
}

bool isCaption(const QLabel *label)
{
    // The dip switch page gives its captions no role.
    static const QStringList roles{QString(), QStringLiteral("caption"), QStringLiteral("heading"),
                                   QStringLiteral("pulse"), QStringLiteral("title")};
    return !label->text().trimmed().isEmpty() && roles.contains(roleOf(label));
}

template <class Widget>
bool holds(const QWidget *group)
{
    return group->findChild<Widget *>(QString(), Qt::FindDirectChildrenOnly) != nullptr;
}

/// A row of its own that holds nothing but a caption.
bool holdsCaptionOnly(const QWidget *row)
{
    const auto parts = row->findChildren<QWidget *>();
    return std::all_of(parts.begin(), parts.end(),
                       [](const QWidget *part) { return qobject_cast<const QLabel *>(part) != nullptr; });
}

/// The nearest text of that role, above the widget or beside what is above it.
QString nearest(const QWidget *widget, const char *role)
{
    for (const QWidget *above = widget->parentWidget(); above != nullptr; above = above->parentWidget()) {
        const auto labels = above->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (roleOf(label) == QLatin1String(role)) {
                return accessnames::spoken(label->text());
            }
        }
    }
    return {};
}

} // namespace

namespace accessnames {

// A caption breaks its lines by itself, some of them within a word.
QString spoken(const QString &text)
{
    static const QRegularExpression broken(QStringLiteral("(?<=\\p{Ll})-\\n(?=\\p{Ll})"));
    return QString(text).remove(broken).simplified();
}

QString given(const QWidget *widget)
{
    // A damaged language may have a text for the empty key.
    const QString name = widget->accessibleName();
    return name.isEmpty() ? name : spoken(mainDialog->languageTextOrKey(name));
}

QString caption(const QWidget *row)
{
    const auto labels = labelsOf(row);
    const auto first = std::find_if(labels.begin(), labels.end(), isCaption);
    return first == labels.end() ? QString() : spoken((*first)->text());
}

QString ofList(const QWidget *list)
{
    QStringList parts{caption(list->parentWidget())};
    const auto labels = labelsOf(list->parentWidget());
    for (const QLabel *label : labels) {
        if (label->buddy() == list && !isCaption(label)) {
            parts.append(spoken(label->text()));
        }
    }
    parts.append(given(list));
    parts.removeAll(QString());
    parts.removeDuplicates(); // a caption with "&" names its list itself, too
    return parts.join(QLatin1Char(' '));
}

QString ofGroup(const QWidget *group)
{
    if (roleOf(group) == QLatin1String("body")) {
        return nearest(group, "title");
    }
    if (holds<QComboBox>(group) || holds<QLineEdit>(group) || roleOf(group) == QLatin1String("header")) {
        return {};
    }
    const QString own = caption(group);
    const auto parts = group->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    if (!own.isEmpty() || parts.isEmpty() || holds<QRadioButton>(group) || !holdsCaptionOnly(parts.first())) {
        return own;
    }
    return caption(parts.first());
}

QString ofButton(const QAbstractButton *button)
{
    if (roleOf(button->parentWidget()) == QLatin1String("header")) {
        return nearest(button, "title");
    }
    const QString name = given(button);
    return name.isEmpty() ? spoken(button->text()) : name;
}

QString ofStep(const QWidget *step) { return nearest(step, "step"); }

QString stepState(const QWidget *step)
{
    const int number = stepOf(step);
    const Results &results = mainDialog->members().results;
    const bool done = (number == 1 && results.productDone) || (number == 2 && results.dipSwitchDone)
        || (number == 3 && results.settingDone) || (number == 4 && mainDialog->stepsDone());
    QStringList words;
    if (opencontrols::currentStep() == number) {
        words.append(QStringLiteral("Current step"));
    }
    const QString key = done ? QStringLiteral("CompleteMessage") : QStringLiteral("ErrorMessage");
    words.append(spoken(mainDialog->languageTextOrKey(key)));
    words.append(opencontrols::ofStep(number));
    return words.join(QStringLiteral(", "));
}

int stepOf(const QWidget *part)
{
    static const QStringList buttons{QStringLiteral("productSelectionButton"),
                                     QStringLiteral("dipSwitchButton"), QStringLiteral("settingButton"),
                                     QStringLiteral("validationButton")};
    static const QStringList marks{QStringLiteral("labelErrorProduct"), QStringLiteral("labelErrorDipSwitch"),
                                   QStringLiteral("labelErrorSetting")};
    return qMax(buttons.indexOf(part->objectName()), marks.indexOf(part->objectName())) + 1;
}

int tabOf(const QWidget *part)
{
    static const QStringList tabs{QStringLiteral("function"), QStringLiteral("user"),
                                  QStringLiteral("service"), QStringLiteral("installation")};
    const QString name = part->objectName();
    const auto found = std::find_if(tabs.begin(), tabs.end(), [&name](const QString &tab) {
        return name == tab + QLatin1String("TabButton") || name == tab + QLatin1String("ValidationIcon");
    });
    return found == tabs.end() ? -1 : static_cast<int>(found - tabs.begin());
}

} // namespace accessnames
