#pragma once

#include <QStringList>
#include <QVector>

/// The tables of tests/data.
namespace tables {

/// The cells of each row; lines that begin with "#" are left out.
QVector<QStringList> rows(const char *file);

} // namespace tables
