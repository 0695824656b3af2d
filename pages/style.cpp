#include "pages/style.h"

#include <QStyle>
#include <QVariant>
#include <QWidget>

namespace style {

QString radioText(bool isEnabled)
{
    return QStringLiteral("QRadioButton{color : %1} QRadioButton::indicator { width: 18px; height: 18px; "
                          "margin-right:8px;}"
                          "QRadioButton::indicator::unchecked {image: url(:/images/btn_radiobtn_off.png);}"
                          "QRadioButton::indicator::checked {image: url(:/images/btn_radiobtn_on.png);}")
        .arg(isEnabled ? QStringLiteral("rgba(33,33,33)") : QStringLiteral("rgba(33,33,33,30%)"));
}

QString labelText(bool isEnabled)
{
    return isEnabled ? QStringLiteral("color : #555555;") : QStringLiteral("color : rgba(55,55,55,30%)");
}

void apply(QWidget *widget, const QString &sheet)
{
    if (widget->styleSheet() != sheet) {
        widget->setStyleSheet(sheet);
    }
}

void mark(QWidget *widget, const char *property, bool value)
{
    if (widget->property(property).toBool() != value) {
        widget->setProperty(property, value);
        // A style sheet looks at properties when a widget is polished.
        widget->style()->unpolish(widget);
        widget->style()->polish(widget);
    }
}

} // namespace style
