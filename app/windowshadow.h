#pragma once

#include <QGraphicsDropShadowEffect>

/// The shadow of the whole window. A window is opaque and can't be painted beyond its edges, so its shadow
/// never shows; drawing the window alone gives the same picture without blurring a million pixels at each
/// repaint.
class WindowShadow : public QGraphicsDropShadowEffect
{
public:
    using QGraphicsDropShadowEffect::QGraphicsDropShadowEffect;

protected:
    void draw(QPainter *painter) override { drawSource(painter); }
};
