#pragma once

#include <QFile>

/// Whole files of the tests.
namespace testfiles {

inline void put(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("Can't write %s", qPrintable(path));
    }
}

/// The bytes of the file, or "(none)" when it can't be read.
inline QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(none)");
}

/// The path as the log prints it.
inline QString quoted(const QString &path) { return QLatin1Char('"') + path + QLatin1Char('"'); }

/// A small document out of order. It holds what the dip switch page would write on showing it.
inline const QByteArray unsorted = R"({
  "product": "awhp",
  "a": {"d": "é", "c": [2, 1]},
  "IduFuncList": {"is_installed_heater": "CLR", "is_comm_disinfection": "CLR", "isIndoorHotWaterKey": "CLR",
                  "is_boosterht_onlyMode": "CLR", "is_hotwater_by_disinfection": "CLR"}
}
)";
/// The same, as it is saved.
inline const QByteArray sorted =
    R"({"IduFuncList":{"isIndoorHotWaterKey":"CLR","is_boosterht_onlyMode":"CLR","is_comm_disinfection":"CLR",)"
    R"("is_hotwater_by_disinfection":"CLR","is_installed_heater":"CLR"},"a":{"c":[2,1],"d":"é"},"product":"awhp"})";

/// The default document of "R32" or "R410".
inline QString resource(const QString &refrigerant)
{
    return QStringLiteral(":/defaultsettings/KV5_AWHP_DATA_%1.json").arg(refrigerant);
}

} // namespace testfiles
