#pragma once

#include "widgets/plaintext.h"

/// Marks the caption to the right of it, in the same layout, by a dot beside its first line.
class Bullet : public PlainLabel
{
public:
    using PlainLabel::PlainLabel;

protected:
    void paintEvent(QPaintEvent *event) override;
};
