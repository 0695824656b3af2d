#pragma once

#include "pages/product/dipswitchsettingstatus.h"
#include "support/dipswitches.h"
#include "support/window.h"

/// A window with the dip switch page, and short ways to load and ask that page.
class DipSwitchTest : public QObject
{
protected:
    static inline const QString labelEnabled = QStringLiteral("color : #333333;");
    static inline const QString labelDimmed = QStringLiteral("color : rgba(33,33,33,30%)");
    static inline const QString meter = QStringLiteral("SettingInfo.installation.meterInterface.");
    static inline const QString oduFunction = QStringLiteral("SettingInfo.installation.OduFunctionMS");
    static inline const QString silentPriority = QStringLiteral(
        "SettingInfo.installation.silentModePriority");

    static QString switchStyle(bool on)
    {
        return QStringLiteral("QPushButton{border : none; image: url(:/images/btn_step2_switch_%1.png); "
                              "background-color:rgb(214, 214, 214); color : rgba(0,0,0,0%);}")
            .arg(on ? "on" : "off");
    }

    static QString radioStyle(const char *colour)
    {
        return QStringLiteral("QRadioButton{color : %1} QRadioButton::indicator { width: 18px; height: 18px; "
                              "margin-right:8px;}QRadioButton::indicator::unchecked {image: "
                              "url(:/images/btn_radiobtn_off.png);}QRadioButton::indicator::checked {image: "
                              "url(:/images/btn_radiobtn_on.png);}")
            .arg(QLatin1String(colour));
    }

    static inline const QString radioEnabled = radioStyle("rgba(33,33,33)");
    static inline const QString radioDimmed = radioStyle("rgba(33,33,33,30%)");

    /// Flags below IduFuncList as "name VALUE" pairs.
    static QVariantMap flags(const QString &pairs)
    {
        QVariantMap result;
        const QStringList parts = pairs.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (int index = 0; index + 1 < parts.size(); index += 2) {
            result.insert(QStringLiteral("IduFuncList.") + parts.at(index), parts.at(index + 1));
        }
        return result;
    }

    /// An Aquabox with everything on the page. The path of the function master, as the page reads it, ends in
    /// "Ms".
    static QVariantMap everything()
    {
        return documents::joined(flags("isOduFunctionMS SET isSilentPriority SET"),
                                 {{"product", "aquabox"},
                                  {"SettingInfo.installation.OduFunctionMs", "master"},
                                  {meter + "interfaceAdd", 176}});
    }

    /// Every path that a control of the page writes, with a value that none of them writes.
    static QVariantMap marks()
    {
        QVariantMap result{{meter + "interface1", 1},
                           {meter + "interface2", 1},
                           {meter + "interface3", 1},
                           {meter + "interface4", 1}};
        for (const QString &radio : dipswitches::radios()) {
            const QVariantMap written = dipswitches::clicked(radio);
            for (auto value = written.begin(); value != written.end(); ++value) {
                result.insert(value.key(), value->type() == QVariant::Int ? QVariant(1) : QVariant("x"));
            }
        }
        return result;
    }

    /// The radio that a load of a default document with these values checks.
    static QString expected(const QString &choice, const QVariantMap &values)
    {
        const QVariantMap held = documents::changes({}, documents::with(documents::standard("R32"), values));
        return dipswitches::checked(
            choice, [&held](const QString &path) { return QJsonValue::fromVariant(held.value(path)); });
    }

    void open()
    {
        window = std::make_unique<Window>();
        page = window->page<DipSwitchSettingStatus>();
    }
    void close() { window.reset(); }

    /// Shows the page for a default document with these values.
    void load(const QVariantMap &values, const char *refrigerant = "R32")
    {
        window->use(documents::with(documents::standard(refrigerant), values));
        window->showPage(MainDialog::DipSwitchPage);
    }

    bool checked(const char *name) const { return Window::checked(page, name); }
    bool done() const { return window->dialog.members().results.dipSwitchDone; }
    QString style(const char *name) const { return Window::find(page, name)->styleSheet(); }

    /// The positions of a bank's switches, "0" and "1"; "?" where text and picture disagree.
    static QString bank(const QWidget *page, int number)
    {
        QString positions;
        for (int pin = 1; pin <= (number == 2 ? 8 : 4); ++pin) {
            const auto name = QStringLiteral("DipSwitch%1%2").arg(number).arg(pin).toLatin1();
            const auto *button = Window::find<QPushButton>(page, name);
            const bool on = button->text() == "true";
            const bool agree = (on || button->text() == "false") && button->styleSheet() == switchStyle(on);
            positions += agree ? (on ? "1" : "0") : "?";
        }
        return positions;
    }
    QString bank(int number) const { return bank(page, number); }

    /// The radios of a list that are checked.
    QString checkedOf(const QString &names) const
    {
        QStringList result;
        const QStringList all = names.split(QLatin1Char(' '));
        for (const QString &name : all) {
            if (checked(name.toLatin1())) {
                result.append(name);
            }
        }
        return result.join(QLatin1Char(' '));
    }

    void uncheck(const QString &names)
    {
        const QStringList all = names.split(QLatin1Char(' '));
        for (const QString &name : all) {
            auto *radio = Window::find<QRadioButton>(page, name.toLatin1());
            radio->setAutoExclusive(false);
            radio->setChecked(false);
            radio->setAutoExclusive(true);
        }
    }

    QString call(const char *slot, bool argument)
    {
        QString result;
        QMetaObject::invokeMethod(page, slot, Q_RETURN_ARG(QString, result), Q_ARG(bool, argument));
        return result;
    }

    std::unique_ptr<Window> window;
    DipSwitchSettingStatus *page = nullptr;
};
