#pragma once

#include <QByteArray>

#include <optional>

class QString;

/// Whole files. What exists and isn't a regular file (a folder, a FIFO, a device) counts as one that can't be
/// opened.
namespace files {

/// The bytes of the file; nothing when it can't be opened.
std::optional<QByteArray> read(const QString &path);

/// Opens the file for reading and writing, creates it when missing, cuts it and writes the content at once.
/// False when any of it fails, up to closing. Nothing is changed when the file can't be opened; after that a
/// new one may be left empty, and an old one empty or short.
[[nodiscard]] bool replaceContent(const QString &path, const QByteArray &content);

} // namespace files
