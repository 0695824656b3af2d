#pragma once

#include <QByteArray>
#include <QStringList>

#include <memory>

/// Calls of the system that fail. The functions by which Qt reaches files are this program's own: they call
/// the system's, but for the one that is to fail.
namespace injection {

/// How a call fails.
struct Fault {
    int error = 0;
    /// Only writes fail: half of the bytes find room, and none after them.
    bool half = false;
};

struct Calls;

/// Watches the calls that this thread makes on files in or below a folder, as long as it lives.
class Watch
{
public:
    /// The n-th call of those that can fail so fails; none when `number` is 0.
    Watch(const QString &folder, int number, Fault fault);
    ~Watch();
    Q_DISABLE_COPY_MOVE(Watch)

    /// The calls so far, as what is done and the path below the folder: "open to read", "open", "cut",
    /// "write", "sync", "rename", "link", "unlink", "close after reading" and "close".
    QStringList calls() const;

    /// The call that failed, with " again" behind it for each time that it was made before; empty when none
    /// did.
    QString failed() const;

private:
    std::unique_ptr<Calls> state;
};

} // namespace injection
