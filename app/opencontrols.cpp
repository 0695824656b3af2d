#include "app/opencontrols.h"

#include "app/accessnames.h"
#include "app/maindialog.h"
#include "app/pagestack.h"

#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>
#include <array>

namespace {

const PageStack *stack(const char *name) { return mainDialog->findChild<PageStack *>(QLatin1String(name)); }

const PageStack *steps() { return stack("stackedWidget"); }

const PageStack *tabs() { return stack("settingStackedWidget"); }

enum class Sections { AsTheyAre, Opened };

/// Whether the page shows the part, or would if its sections were open.
bool isShown(const QWidget *part, const QWidget *page, Sections sections)
{
    for (const QWidget *at = part; at != page; at = at->parentWidget()) {
        const bool closed = sections == Sections::Opened && at->property("role") == QLatin1String("body");
        if (at->isHidden() && !closed) {
            return false;
        }
    }
    return true;
}

/// Auto mode may stay without a season, and the meter without an address.
bool mayStayOpen(const QWidget *control)
{
    for (const QWidget *at = control; at != nullptr; at = at->parentWidget()) {
        if (at->inherits("InstallationaAuto") || at->objectName() == QLatin1String("groupBoxMeterAddress")) {
            return true;
        }
    }
    return false;
}

/// A group with a radio that is hidden or dimmed has nothing to choose; step 1 leaves out what isn't sold.
bool isOpen(const QRadioButton *radio, const QWidget *page, Sections sections)
{
    const auto group = radio->parentWidget()->findChildren<QRadioButton *>(QString(),
                                                                           Qt::FindDirectChildrenOnly);
    const bool productPage = page == steps()->widget(MainDialog::ProductPage);
    return std::all_of(group.begin(), group.end(), [&](const QRadioButton *each) {
        const bool offered = each->isEnabled() && isShown(each, page, sections);
        return !each->isChecked() && (offered || productPage);
    });
}

/// Whether it still shows what it is called, "Year", in the place of a choice.
bool isOpen(const QComboBox *list)
{
    return list->isEnabled() && list->currentIndex() == 0 && !list->accessibleName().isEmpty()
        && accessnames::spoken(list->currentText()) == accessnames::given(list);
}

bool isOpen(const QLineEdit *edit) { return edit->isEnabled() && edit->text().isEmpty(); }

bool isOpen(const QWidget *control, const QWidget *page, Sections sections)
{
    if (!isShown(control, page, sections) || mayStayOpen(control)) {
        return false;
    }
    if (const auto *radio = qobject_cast<const QRadioButton *>(control)) {
        return isOpen(radio, page, sections);
    }
    if (const auto *list = qobject_cast<const QComboBox *>(control)) {
        return isOpen(list);
    }
    const auto *edit = qobject_cast<const QLineEdit *>(control);
    return edit != nullptr && isOpen(edit);
}

QStringList captions(const QWidget *page, Sections sections)
{
    QStringList found;
    const auto controls = page->findChildren<QWidget *>();
    for (const QWidget *control : controls) {
        if (isOpen(control, page, sections)) {
            found.append(accessnames::caption(control->parentWidget()));
        }
    }
    found.removeDuplicates();
    return found;
}

/// A section that was closed since its check is looked into when no open one tells what the mark stands for.
QStringList captions(const PageStack *pages, int page, const QString &name)
{
    QStringList found;
    if (pages->wasShown(page)) {
        found = captions(pages->widget(page), Sections::AsTheyAre);
        if (found.isEmpty()) {
            found = captions(pages->widget(page), Sections::Opened);
        }
    }
    return found.isEmpty() ? QStringList{name} : found;
}

QString textOf(const char *key)
{
    return accessnames::spoken(mainDialog->languageTextOrKey(QLatin1String(key)));
}

bool isTabValid(int tab)
{
    const Results &results = mainDialog->members().results;
    const std::array<bool, 4> valid{results.functionValid, results.userValid, results.serviceValid,
                                    results.installationValid};
    return valid.at(static_cast<std::size_t>(tab));
}

} // namespace

namespace opencontrols {

QStringList ofStep(int step)
{
    const Results &results = mainDialog->members().results;
    QStringList found;
    if (step == 1 && !results.productDone) {
        found = captions(steps(), MainDialog::ProductPage, textOf("ProductSelection"));
    } else if (step == 2 && !results.dipSwitchDone) {
        found = captions(steps(), MainDialog::DipSwitchPage, textOf("DipSwitchSettingStatus"));
    } else if (step == 3 && !results.settingDone) {
        for (const int tab : {MainDialog::FunctionTab, MainDialog::UserTab, MainDialog::InstallationTab}) {
            found += ofTab(tab);
        }
    }
    return found;
}

QStringList ofTab(int tab)
{
    static const std::array<const char *, 4> keys{"Function", "User", "Service", "Installation"};
    if (tab < MainDialog::FunctionTab || tab > MainDialog::InstallationTab || isTabValid(tab)) {
        return {};
    }
    return captions(tabs(), tab, textOf(keys.at(static_cast<std::size_t>(tab))));
}

int currentStep()
{
    const int page = steps()->currentIndex();
    if (page == MainDialog::ValidationPage) {
        return 4;
    }
    return page >= MainDialog::ProductPage && page <= MainDialog::SettingPage ? page : 0;
}

} // namespace opencontrols
