#include "document/settings.h"

#include "document/files.h"
#include "document/util.h"

#include <QDebug>

QJsonValue Settings::value(const QString &path) const { return Util::readJsonValue(document, path); }

void Settings::setValue(const QString &path, const QJsonValue &value)
{
    if (!document.isEmpty()) {
        Util::modifyJsonValue(document, path, value);
    }
}

bool Settings::startWith(const QString &refrigerant)
{
    const QString name = refrigerant.toUpper();
    QString path;
    if (name == QLatin1String("R410") || name == QLatin1String("R32")) {
        path = QStringLiteral(":/defaultsettings/KV5_AWHP_DATA_%1.json").arg(name);
    }
    if (!load(path)) {
        qWarning() << "MainDialog::openNewJsonFile load json data failed";
        return false;
    }
    filePath = path;
    isNewFile = true;
    return true;
}

bool Settings::open(const QString &path)
{
    qDebug() << "MainDialog::openJsonFile"
             << " selectedFile:" << path;
    if (!load(path)) {
        qWarning() << "MainDialog::openJsonFile load json data failed";
        return false;
    }
    takeName(path);
    return true;
}

// Oddity 48: what isn't JSON gives a null document and counts as loaded all the same.
bool Settings::load(const QString &path)
{
    qDebug() << "Load Json Data!!";
    const auto content = files::read(path);
    if (!content) {
        qWarning() << "MainDialog::loadJsonData failed to open file:" << path;
        return false;
    }
    document = QJsonDocument::fromJson(*content);
    return true;
}

bool Settings::allowsSave(bool stepsDone) const
{
    if (!stepsDone) {
        qDebug() << "MainDialog::on_saveButton_clicked save is failed validation :" << saveValidated;
    } else if (filePath.isEmpty()) {
        qDebug() << "MainDialog::on_saveButton_clicked file is not opened";
    }
    return stepsDone && !filePath.isEmpty();
}

void Settings::takeName(const QString &path)
{
    filePath = path;
    isNewFile = false;
}

void Settings::save(const QString &path) const
{
    if (path.isEmpty()) {
        qWarning() << "MainDialog::saveJsonFile save file path is empty";
    } else if (!files::replaceContent(path, document.toJson(QJsonDocument::Compact))) {
        qWarning() << "MainDialog::saveJsonFile:" << path;
    }
}
