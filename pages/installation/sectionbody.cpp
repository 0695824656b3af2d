#include "pages/installation/sectionbody.h"

#include "pages/installation/choicecolumn.h"
#include "widgets/palette.h"

#include <QEvent>
#include <QGroupBox>
#include <QLayout>
#include <QPainter>
#include <QVariant>

namespace {

/// The groups of rows of a body from the top, those of a product's settings in it among them, and the curves
/// of a group instead of itself.
QList<const QGroupBox *> groupsOf(const QWidget *body)
{
    QList<const QGroupBox *> groups;
    const QLayout *layout = body->layout();
    for (int index = 0; layout != nullptr && index < layout->count(); ++index) {
        const QWidget *part = layout->itemAt(index)->widget();
        if (part == nullptr || part->isHidden()) {
            continue;
        }
        const auto *group = qobject_cast<const QGroupBox *>(part);
        if (group != nullptr && !group->property("ofGroups").toBool()) {
            groups.append(group);
        } else {
            groups += groupsOf(part);
        }
    }
    return groups;
}

} // namespace

SectionBody::SectionBody(QWidget *parent)
    : QFrame(parent)
{
}

SectionBody::~SectionBody() = default;

bool SectionBody::hasRows() const { return !groupsOf(this).isEmpty(); }

QSize SectionBody::sizeHint() const { return hasRows() ? QFrame::sizeHint() : QSize(0, 0); }

QSize SectionBody::minimumSizeHint() const { return hasRows() ? QFrame::minimumSizeHint() : QSize(0, 0); }

bool SectionBody::hasHeightForWidth() const { return hasRows() && QFrame::hasHeightForWidth(); }

bool SectionBody::event(QEvent *event)
{
    const bool isNew = event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize
        || event->type() == QEvent::Show;
    // A closed section isn't measured: the start would pay for it.
    if (isNew && isVisible()) {
        if (choices == nullptr) {
            choices = std::make_unique<ChoiceColumn>(this);
        }
        choices->place();
        update(); // the lines stand where no row is
    }
    return QFrame::event(event);
}

// The header may be out of sight.
void SectionBody::paintTone(QPainter &painter) const
{
    const QString tone = property("tone").toString();
    for (const palette::Colour &colour : {palette::cool, palette::warm}) {
        if (tone == QLatin1String(colour.name)) {
            constexpr int edge = 1;
            painter.fillRect(edge, 0, 3, height() - 2 * edge, QColor(colour.value));
        }
    }
}

void SectionBody::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    const QList<const QGroupBox *> groups = groupsOf(this);
    if (!groups.isEmpty()) {
        paintTone(painter);
    }
    for (int index = 1; index < groups.size(); ++index) {
        const QGroupBox *above = groups.at(index - 1);
        const QGroupBox *below = groups.at(index);
        const int bottom = above->mapTo(this, QPoint(0, above->height())).y();
        const int top = below->mapTo(this, QPoint()).y();
        constexpr int margin = 16;
        painter.fillRect(margin, (bottom + top) / 2, width() - 2 * margin, 1,
                         QColor(palette::hairline.value));
    }
}
