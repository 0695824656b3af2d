#pragma once

#include <QFrame>

#include <memory>

class ChoiceColumn;

/// The body of a section: hairlines stand between its groups of rows, second choices in one column, and
/// without any row it takes no room. One with the property "tone" has an edge in that colour of the palette.
class SectionBody : public QFrame
{
    Q_OBJECT

public:
    explicit SectionBody(QWidget *parent = nullptr);
    ~SectionBody() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool hasRows() const;
    void paintTone(QPainter &painter) const;

    std::unique_ptr<ChoiceColumn> choices;
};
