#pragma once

#include <QComboBox>
#include <QHash>
#include <QJsonDocument>
#include <QRadioButton>

class MainDialog;

/// The window at one moment of a walk: its document, unit and language, read by the walk's own means, and its
/// controls by "Page/control", where Page is the class that the control lies in.
class Scene
{
public:
    explicit Scene(MainDialog &window);

    /// Takes document, unit and language as they stand now.
    void look();
    /// The same with another document, such as the one that has been loaded.
    void look(const QJsonDocument &document);

    const QJsonDocument &document() const { return now; }
    QJsonValue value(const QString &path) const;
    QString text(const QString &path) const { return value(path).toString(); }
    /// Upper-cased.
    QString word(const QString &path) const { return text(path).toUpper(); }
    int number(const QString &path) const { return value(path).toInt(); }
    /// Whether the flag of the indoor unit is "SET", in any case.
    bool has(const QString &flag) const { return word(QStringLiteral("IduFuncList.") + flag) == set(); }
    /// The same below the installation settings: "SET" at that path, in any case.
    bool isSet(const QString &path) const { return word(path) == set(); }

    bool fahrenheit() const { return isFahrenheit; }
    /// The text of a language key, or the key.
    QString speak(const QString &key) const { return language.value(key, key).toString(); }

    /// The control of that name; ends the run when there is none.
    template <class W = QWidget>
    W *control(const QString &name) const
    {
        auto *widget = qobject_cast<W *>(controls.value(name));
        if (widget == nullptr) {
            qFatal("No control %s", qPrintable(name));
        }
        return widget;
    }
    /// "Page/control" of a widget, or nothing when it lies in no page.
    static QString nameOf(const QWidget *widget);
    /// Whether the section writes to the document; true for what is no section.
    bool isOpen(const QString &page) const;

    static QString set() { return QStringLiteral("SET"); }

private:
    MainDialog &dialog;
    QHash<QString, QWidget *> controls;
    QJsonDocument now;
    QVariantMap language;
    bool isFahrenheit = false;
};

/// Degrees as the lists show them; the conversions that the walk expects.
namespace degrees {

int fahrenheit(int celsius);
/// The lowest °C that shows as this; 0 when there is none.
int celsius(int fahrenheit);
/// The text of a temperature in the unit in force.
QString text(const Scene &scene, int celsius);
/// The temperature of such a text, in °C; that of an empty text is 0.
int of(const Scene &scene, const QString &text);

} // namespace degrees
