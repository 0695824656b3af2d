#include "pages/product/choicerows.h"

#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

#include <algorithm>
#include <utility>

namespace {

constexpr int gap = 8;
constexpr int columns = 5; // the caption, three choices, and the room of one that is missing
/// Captions that break their lines.
constexpr int narrowCaptions = 138;
/// However much room the controls beside it ask for.
constexpr int narrowest = 80;

/// A hidden choice takes no room.
int widthOf(const QWidget *choice)
{
    if (choice->isHidden()) {
        return 0;
    }
    const bool isRadio = qobject_cast<const QRadioButton *>(choice) != nullptr;
    return isRadio ? choice->sizeHint().width() : choice->minimumWidth();
}

/// Of choices that are there; a spacing is none.
bool isPair(const std::vector<QWidget *> &choices)
{
    return std::count_if(choices.begin(), choices.end(),
                         [](const QWidget *choice) {
                             return !choice->isHidden()
                                 && qobject_cast<const QRadioButton *>(choice) != nullptr;
                         })
        == 2;
}

int widest(const std::vector<QWidget *> &choices)
{
    int width = 0;
    for (const QWidget *choice : choices) {
        width = std::max(width, widthOf(choice));
    }
    return width;
}

/// All beside each other; the first is at least `first` wide if there are two.
int together(const std::vector<QWidget *> &choices, int first)
{
    int width = -gap;
    for (const QWidget *choice : choices) {
        const int own = widthOf(choice);
        width += own > 0 ? own + gap : 0;
    }
    return isPair(choices) ? width + std::max(0, first - widthOf(choices.front())) : width;
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
        return caption->fontMetrics().size(0, caption->text()).width() + 2 * caption->margin();
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

ChoiceRows::Plan ChoiceRows::planFor(int room) const
{
    int choice = 0;
    for (const Row &row : rows) {
        choice = std::max(choice, widest(row.choices));
    }
    Plan plan;
    for (const int captions : {widestCaption(), narrowCaptions}) {
        if (plan.captions == 0 && captions + gap + choice <= room) {
            plan.captions = captions;
        }
    }
    const int left = plan.captions == 0 ? room : room - plan.captions - gap;
    for (const Row &row : rows) {
        if (isPair(row.choices) && together(row.choices, 0) <= left) {
            plan.first = std::max(plan.first, widthOf(row.choices.front()));
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
        place(rows.at(index), plan.captions, plan.first, plan.sideBySide.at(index));
    }
    current = plan;
    for (QLabel *caption : further) {
        const int others = caption->parentWidget()->minimumSizeHint().width() - caption->minimumWidth();
        const int width = plan.captions == 0 ? narrowCaptions : plan.captions;
        caption->setFixedWidth(std::max(narrowest, std::min(width, room - others)));
    }
}

void ChoiceRows::place(const Row &row, int captions, int first, bool sideBySide)
{
    const bool below = captions == 0;
    const int choices = static_cast<int>(row.choices.size());
    row.grid->removeWidget(row.caption);
    row.caption->setMinimumWidth(below ? 0 : captions);
    row.caption->setMaximumWidth(below ? QWIDGETSIZE_MAX : captions);
    if (below) {
        row.grid->addWidget(row.caption, row.line, 0, 1, std::min(sideBySide ? 2 : 1, choices));
    } else {
        row.grid->addWidget(row.caption, row.line, 0, sideBySide ? 1 : choices, 1);
    }
    int line = row.line + (below ? 1 : 0);
    int column = below ? 0 : 1;
    for (QWidget *choice : row.choices) {
        row.grid->removeWidget(choice);
        const bool isFirstOfPair = sideBySide && isPair(row.choices) && choice == row.choices.front();
        if (qobject_cast<QRadioButton *>(choice) != nullptr) {
            choice->setMinimumWidth(isFirstOfPair ? first : 0);
        }
        row.grid->addWidget(choice, line, column);
        (sideBySide ? column : line) += 1;
    }
    // What is left goes to the end of the row, where nothing is to be seen.
    const int last = sideBySide ? column - 1 : column;
    for (int each = 0; each < columns; ++each) {
        row.grid->setColumnStretch(each, each == last ? 1 : 0);
    }
}
