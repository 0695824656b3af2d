#pragma once

#include <vector>

class QHBoxLayout;
class QRadioButton;
class QWidget;

/// Keeps the second choices of a section in one column, that of the widest pair, and each choice apart from
/// the word before it.
class ChoiceColumn
{
public:
    /// Serves the rows that `sectionBody` has by now.
    explicit ChoiceColumn(const QWidget *sectionBody);

    /// Places the choices that are shown; what stands already where it shall isn't touched.
    void place() const;

private:
    struct Row {
        QHBoxLayout *layout;
        std::vector<QRadioButton *> choices;
        std::vector<int> least; ///< of each choice, as the form has it
        int first() const;
        int width(int ofFirst) const;
        void place(int ofFirst) const;
    };

    int room() const;
    /// The widest first choice whose column leaves each pair its room.
    int common() const;
    bool isThere(const Row &row) const;

    const QWidget *body;
    std::vector<Row> rows;
};
