#pragma once

#include <cstddef>
#include <vector>

class QGridLayout;
class QLabel;
class QWidget;

/// The rows of the dip switch page: a caption and its choices, side by side where there is room, else one
/// below the other, and below their caption where even that is too wide.
class ChoiceRows
{
public:
    /// The first line of a second row in the same grid.
    static constexpr int nextLine = 4;

    /// Choices of one caption; `line` is the first line in the grid that is theirs.
    struct Row {
        QGridLayout *grid;
        int line;
        QLabel *caption;
        std::vector<QWidget *> choices;
    };

    /// `further` are captions of the same column whose controls stay beside them.
    ChoiceRows(std::vector<Row> placedRows, std::vector<QLabel *> furtherCaptions);

    /// Places all for this many pixels; what stands already where it shall isn't touched.
    void place(int room);

private:
    struct Plan {
        int captions = 0; ///< width of the column, 0: choices stand below their caption
        int indent = 0;   ///< of choices below their caption
        int first = 0;    ///< width of the column of first choices
        std::vector<bool> sideBySide;
        std::vector<bool> pairs;

        bool operator==(const Plan &other) const
        {
            return captions == other.captions && indent == other.indent && first == other.first
                && sideBySide == other.sideBySide && pairs == other.pairs;
        }
    };

    Plan planFor(int room) const;
    Plan planWith(int captions, int indent, int room) const;
    int widestCaption() const;
    static void place(const Row &row, const Plan &plan, std::size_t index);

    std::vector<Row> rows;
    std::vector<QLabel *> further;
    Plan current;
};
