#pragma once

#include <QFrame>

/// The frame that holds the window's content and gives it its look. It has the style sheet from the start:
/// what is made inside it is styled once.
class StyledFrame : public QFrame
{
    Q_OBJECT

public:
    explicit StyledFrame(QWidget *parent = nullptr);
};
