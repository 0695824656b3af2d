#pragma once

#include <QObject>

/// Makes the file dialogs of a window list JSON files. The filter "*.json;" is one for the dialogs of
/// Windows, where a semicolon separates; Qt's own dialog takes it as part of the name, and would list no
/// file. Attaches itself as event filter; a dialog of the system isn't touched.
class JsonList : public QObject
{
public:
    /// The window owns this.
    explicit JsonList(QObject *window);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
