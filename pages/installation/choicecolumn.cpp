#include "pages/installation/choicecolumn.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

#include <algorithm>
#include <array>

namespace {

/// Beside the spacing of a row, between a choice and the circle of the next one.
constexpr int apart = 16;

/// Sections follow each other: where their columns don't agree, they differ by more than a near miss.
constexpr std::array columns{150, 192, 252};

int columnFor(int first)
{
    const auto *column = std::lower_bound(columns.begin(), columns.end(), first);
    return column == columns.end() ? first : *column;
}

/// A caption takes all that it may.
int widthOf(const QWidget *part)
{
    const auto *label = qobject_cast<const QLabel *>(part);
    const bool isColumn = label != nullptr && label->maximumWidth() < QWIDGETSIZE_MAX;
    return isColumn ? label->maximumWidth() : part->sizeHint().width();
}

} // namespace

ChoiceColumn::ChoiceColumn(const QWidget *sectionBody)
    : body(sectionBody)
{
    const auto groups = body->findChildren<QGroupBox *>();
    for (const QGroupBox *group : groups) {
        Row row{qobject_cast<QHBoxLayout *>(group->layout()), {}, {}};
        for (int index = 0; row.layout != nullptr && index < row.layout->count(); ++index) {
            if (auto *choice = qobject_cast<QRadioButton *>(row.layout->itemAt(index)->widget())) {
                row.choices.push_back(choice);
                row.least.push_back(choice->minimumWidth());
            }
        }
        if (row.choices.size() > 1) {
            rows.push_back(row);
        }
    }
}

int ChoiceColumn::Row::first() const
{
    return std::max(least.front(), choices.front()->sizeHint().width() + apart);
}

/// All in one line.
int ChoiceColumn::Row::width(int ofFirst) const
{
    const QMargins margins = layout->contentsMargins();
    int width = margins.left() + margins.right() - layout->spacing();
    for (int index = 0; index < layout->count(); ++index) {
        const QWidget *part = layout->itemAt(index)->widget();
        if (part != nullptr && qobject_cast<const QRadioButton *>(part) == nullptr) {
            width += widthOf(part) + layout->spacing();
        }
    }
    for (std::size_t index = 0; index < choices.size(); ++index) {
        const bool isLast = index + 1 == choices.size();
        const int own = choices.at(index)->sizeHint().width() + (isLast ? 0 : apart);
        width += (index == 0 ? ofFirst : std::max(least.at(index), own)) + layout->spacing();
    }
    return width;
}

void ChoiceColumn::Row::place(int ofFirst) const
{
    choices.front()->setMinimumWidth(ofFirst);
    for (std::size_t index = 1; index + 1 < choices.size(); ++index) {
        QRadioButton *choice = choices.at(index);
        choice->setMinimumWidth(std::max(least.at(index), choice->sizeHint().width() + apart));
    }
}

int ChoiceColumn::room() const
{
    const QMargins margins = body->layout()->contentsMargins();
    return body->contentsRect().width() - margins.left() - margins.right();
}

bool ChoiceColumn::isThere(const Row &row) const { return row.layout->parentWidget()->isVisibleTo(body); }

int ChoiceColumn::common() const
{
    const int all = room();
    std::vector<const Row *> pairs;
    for (const Row &row : rows) {
        if (isThere(row) && row.choices.size() == 2) {
            pairs.push_back(&row);
        }
    }
    int widest = 0;
    std::vector<int> widths;
    for (const Row *candidate : pairs) {
        widths.push_back(candidate->first());
        widths.push_back(columnFor(candidate->first()));
    }
    for (const int width : widths) {
        const bool leavesRoom = std::all_of(pairs.begin(), pairs.end(), [all, width](const Row *pair) {
            return pair->first() >= width || pair->width(width) <= all;
        });
        widest = leavesRoom ? std::max(widest, width) : widest;
    }
    return widest;
}

void ChoiceColumn::place() const
{
    const int column = common();
    for (const Row &row : rows) {
        if (isThere(row)) {
            const int first = std::max(column, columnFor(row.first()));
            row.place(row.width(first) <= room() ? first : row.first());
        }
    }
}
