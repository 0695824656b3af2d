#include "pages/product/choicerows.h"

#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

#include <algorithm>
#include <utility>

namespace {

constexpr int gap = 8;
constexpr int betweenLines = 2; // as in the form
/// Beside the gap, between a choice and the circle of the next one.
constexpr int apart = 16;
/// Choices below their caption, with the gap.
constexpr int indented = 8;
constexpr int aboveCaption = 8;
constexpr int columns = 5; // the caption, three choices, and the room of one that is missing
/// Captions that break their lines.
constexpr int narrowCaptions = 142;
/// However much room the controls beside it ask for.
constexpr int narrowest = 80;

/// What is hidden takes no room, and a spacing has a line of its own.
bool isThere(const QWidget *choice)
{
    return !choice->isHidden() && qobject_cast<const QRadioButton *>(choice) != nullptr;
}

int widthOf(const QWidget *choice) { return isThere(choice) ? choice->sizeHint().width() : 0; }

bool isPair(const std::vector<QWidget *> &choices)
{
    return std::count_if(choices.begin(), choices.end(), isThere) == 2;
}

int widest(const std::vector<QWidget *> &choices)
{
    int width = 0;
    for (const QWidget *choice : choices) {
        width = std::max(width, widthOf(choice));
    }
    return width;
}

/// All beside each other; the first of several takes at least `first`.
int together(const std::vector<QWidget *> &choices, int first)
{
    int width = -gap - apart;
    for (const QWidget *choice : choices) {
        width += isThere(choice) ? widthOf(choice) + apart + gap : 0;
    }
    const bool several = std::count_if(choices.begin(), choices.end(), isThere) > 1;
    return several ? width + std::max(0, first - widthOf(choices.front()) - apart) : width;
}

/// Of a choice beside the others: the last one has nothing to stand apart from.
int widthInRow(const std::vector<QWidget *> &choices, const QWidget *choice, int first)
{
    const auto last = std::find_if(choices.rbegin(), choices.rend(), isThere);
    if (last == choices.rend() || choice == *last) {
        return 0;
    }
    return std::max(choice == choices.front() ? first : 0, widthOf(choice) + apart);
}

} // namespace

ChoiceRows::ChoiceRows(std::vector<Row> placedRows, std::vector<QLabel *> furtherCaptions)
    : rows(std::move(placedRows))
    , further(std::move(furtherCaptions))
{
}

int ChoiceRows::widestCaption() const
{
    const auto needed = [](const QLabel *caption) {
        return caption->fontMetrics().size(0, caption->text()).width() + 2 * caption->margin()
            + caption->contentsMargins().left();
    };
    int width = 0;
    for (const Row &row : rows) {
        width = std::max(width, needed(row.caption));
    }
    for (const QLabel *caption : further) {
        width = std::max(width, needed(caption));
    }
    return width;
}

// Captions break their lines where most pairs would else have to stand below each other.
ChoiceRows::Plan ChoiceRows::planFor(int room) const
{
    int choice = 0;
    for (const Row &row : rows) {
        choice = std::max(choice, widest(row.choices));
    }
    const auto mostStacked = [](const Plan &plan) {
        int stacked = 0;
        for (std::size_t index = 0; index < plan.pairs.size(); ++index) {
            if (plan.pairs.at(index)) {
                stacked += plan.sideBySide.at(index) ? -1 : 1;
            }
        }
        return stacked > 0;
    };
    Plan best;
    for (const int captions : {widestCaption() + apart, widestCaption(), narrowCaptions}) {
        const bool better = best.captions == 0 || mostStacked(best);
        if (better && captions + gap + choice <= room) {
            best = planWith(captions, 0, room);
        }
    }
    return best.captions > 0 ? best : planWith(0, indented + gap + choice <= room ? indented : 0, room);
}

ChoiceRows::Plan ChoiceRows::planWith(int captions, int indent, int room) const
{
    Plan plan;
    plan.captions = captions;
    plan.indent = indent;
    const int beside = captions + indent;
    const int left = beside > 0 ? room - beside - gap : room;
    for (const Row &row : rows) {
        if (isPair(row.choices) && together(row.choices, 0) <= left) {
            plan.first = std::max(plan.first, widthOf(row.choices.front()) + apart);
        }
    }
    for (const Row &row : rows) {
        plan.pairs.push_back(isPair(row.choices));
        plan.sideBySide.push_back(together(row.choices, plan.first) <= left);
    }
    return plan;
}

void ChoiceRows::place(int room)
{
    const Plan plan = planFor(room);
    for (std::size_t index = 0; !(plan == current) && index < rows.size(); ++index) {
        place(rows.at(index), plan, index);
    }
    current = plan;
    for (QLabel *caption : further) {
        const int others = caption->parentWidget()->minimumSizeHint().width() - caption->minimumWidth();
        const int width = plan.captions == 0 ? narrowCaptions : plan.captions;
        caption->setFixedWidth(std::max(narrowest, std::min(width, room - others)));
    }
}

void ChoiceRows::place(const Row &row, const Plan &plan, std::size_t index)
{
    const bool sideBySide = plan.sideBySide.at(index);
    const bool below = plan.captions == 0;
    const int firstColumn = below && plan.indent == 0 ? 0 : 1;
    const int choices = static_cast<int>(row.choices.size());
    row.grid->removeWidget(row.caption);
    row.caption->setMinimumWidth(plan.captions);
    row.caption->setMaximumWidth(below ? QWIDGETSIZE_MAX : plan.captions);
    const int lines = below || sideBySide ? 1 : choices;
    row.grid->addWidget(row.caption, row.line, 0, lines,
                        below ? firstColumn + std::min(sideBySide ? 2 : 1, choices) : 1);
    row.grid->setColumnMinimumWidth(0, plan.indent);
    row.grid->setContentsMargins(0, below ? aboveCaption : 0, 0, 0);
    int line = row.line + (below ? 1 : 0);
    int column = firstColumn;
    for (QWidget *choice : row.choices) {
        row.grid->removeWidget(choice);
        if (qobject_cast<QRadioButton *>(choice) == nullptr) {
            // A line without height needs no distance from a single one above it.
            row.grid->setVerticalSpacing(below || !sideBySide ? betweenLines : 0);
            row.grid->addWidget(choice, row.line + choices, firstColumn);
            continue;
        }
        choice->setMinimumWidth(sideBySide ? widthInRow(row.choices, choice, plan.first) : 0);
        row.grid->addWidget(choice, line, column);
        (sideBySide ? column : line) += 1;
    }
    // What is left goes to the end of the row, where nothing is to be seen.
    const int end = sideBySide ? column - 1 : column;
    for (int each = 0; each < columns; ++each) {
        row.grid->setColumnStretch(each, static_cast<int>(each == end));
    }
}
