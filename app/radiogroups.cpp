#include "app/radiogroups.h"

#include <QHash>
#include <QRadioButton>

namespace {

bool canBeChosen(const QRadioButton *radio) { return radio->isEnabled() && !radio->isHidden(); }

} // namespace

void radiogroups::placeTabStops(const QWidget *window)
{
    const auto radios = window->findChildren<QRadioButton *>();
    QHash<const QWidget *, const QRadioButton *> stops;
    for (const QRadioButton *radio : radios) {
        const QRadioButton *&stop = stops[radio->parentWidget()];
        const bool better = stop == nullptr || (radio->isChecked() && stop != window->focusWidget());
        if (canBeChosen(radio) && (better || radio == window->focusWidget())) {
            stop = radio;
        }
    }
    for (QRadioButton *radio : radios) {
        const bool isStop = stops.value(radio->parentWidget()) == radio;
        radio->setFocusPolicy(isStop ? Qt::StrongFocus : Qt::ClickFocus);
    }
}
