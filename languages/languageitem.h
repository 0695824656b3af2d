#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class LanguageItem;
}

/// A row of the language popup: the name of a language and its edit button.
class LanguageItem : public QWidget
{
    Q_OBJECT

public:
    explicit LanguageItem(QWidget *parent);
    ~LanguageItem() override;

    /// The name is the label's text and nothing else holds it.
    void setLanguage(const QString &name);
    QString language() const;

    /// Marks the language in force.
    void setInForce(bool isInForce);

signals:
    void clickedModifyButton(const QString &language);

protected:
    void paintEvent(QPaintEvent *event) override;

private slots:
    void on_buttonModify_clicked();

private:
    std::unique_ptr<Ui::LanguageItem> ui;
    bool inForce = false;
};
