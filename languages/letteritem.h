#pragma once

#include <QGroupBox>
#include <QWidget>

#include <memory>

class QLineEdit;
namespace Ui {
class LetterItem;
}

/// Frames the line of its row: blue while it has the keyboard, darker under the mouse.
class LetterFrame : public QGroupBox
{
    Q_OBJECT

public:
    explicit LetterFrame(QWidget *parent = nullptr);

    /// Frames this line.
    void setLine(QLineEdit *framed);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLineEdit *line = nullptr;
};

/// A row of the language editor: the text of the language in force and the new text beside it.
class LetterItem : public QWidget
{
    Q_OBJECT

public:
    explicit LetterItem(QWidget *parent);
    ~LetterItem() override;

    void setData(const QString &reference, const QString &editText);
    QString editText() const;

signals:
    /// Nothing emits it.
    void editTextFinished(const QString &reference, const QString &editText);

private slots:
    void on_ButtonRemove_clicked();
    void on_lineEdit_textEdited(const QString &arg1);

private:
    std::unique_ptr<Ui::LetterItem> ui;
};
