#include "languages/languagemenu.h"

#include "languages/languagebox.h"
#include "languages/languageitem.h"
#include "languages/languages.h"
#include "languages/userlanguageeditpopup.h"
#include "ui_languagemenu.h"
#include "widgets/jsonlist.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileDialog>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWindow>

LanguageMenu::LanguageMenu(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::LanguageMenu>())
{
    ui->setupUi(this);
    // Its scroll bar measured itself before it had a style sheet, and a list that isn't polished doesn't tell
    // it.
    ui->listWidget->ensurePolished();
    ui->listWidget->setStyleSheet(ui->listWidget->styleSheet());
    connect(ui->listWidget->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &LanguageMenu::followPointer, Qt::QueuedConnection);
}

LanguageMenu::~LanguageMenu() = default;

void LanguageMenu::setLanguageList(const QStringList &names)
{
    // The viewport is where a row of a list ends up: moved there later, it would be styled twice.
    QWidget *parent = ui->listWidget->viewport();
    for (const QString &name : names) {
        auto *item = new QListWidgetItem(ui->listWidget);
        auto *row = new LanguageItem(parent);
        row->setLanguage(name);
        item->setSizeHint(row->size());
        ui->listWidget->setItemWidget(item, row);
        connect(row, &LanguageItem::clickedModifyButton, this, &LanguageMenu::clickedModifyButton);
    }
}

void LanguageMenu::prepareRows()
{
    const auto parts = ui->listWidget->findChildren<QWidget *>();
    for (const QWidget *part : parts) {
        part->ensurePolished();
    }
}

void LanguageMenu::takeKeys(const QString &language)
{
    int row = 0;
    for (int index = 0; index < ui->listWidget->count(); ++index) {
        row = rowAt(index)->language() == language ? index : row;
    }
    ui->listWidget->setCurrentRow(row);
    ui->listWidget->setFocus(Qt::TabFocusReason);
}

QString LanguageMenu::shownLanguage() const
{
    const auto *label = window()->findChild<QLabel *>(QStringLiteral("labelCurrentLanguage"));
    return label == nullptr ? QString() : label->text();
}

LanguageItem *LanguageMenu::rowAt(int index) const
{
    return static_cast<LanguageItem *>(ui->listWidget->itemWidget(ui->listWidget->item(index)));
}

void LanguageMenu::showEvent(QShowEvent *event)
{
    // Keys make a row the current one; what was picked the last time isn't.
    ui->listWidget->selectionModel()->clear();
    const QString shown = shownLanguage();
    for (int index = 0; index < ui->listWidget->count(); ++index) {
        LanguageItem *row = rowAt(index);
        row->setInForce(row->language() == shown);
        if (row->language() == shown) {
            ui->listWidget->scrollToItem(ui->listWidget->item(index), QAbstractItemView::PositionAtCenter);
        }
    }
    QWidget::showEvent(event);
    setFocus(Qt::PopupFocusReason);
}

// Left to itself, the focus would go on to the next widget that takes it, which is New.
void LanguageMenu::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    auto *box = window()->findChild<LanguageBox *>();
    const QWidget *focused = window()->focusWidget();
    if (box != nullptr && (focused == this || isAncestorOf(focused))) {
        box->setFocus(Qt::PopupFocusReason);
    }
}

// What the list and the buttons leave.
void LanguageMenu::keyPressEvent(QKeyEvent *event)
{
    QListWidgetItem *item = ui->listWidget->currentItem();
    // A key that is held down since it opened the popup takes nothing.
    const bool takes = !event->isAutoRepeat()
        && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter);
    if (takes && item != nullptr && ui->listWidget->hasFocus()) {
        emit ui->listWidget->itemClicked(item);
    } else if (event->key() == Qt::Key_Escape) {
        closeMenu();
    } else if (hasFocus() && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)) {
        takeKeys(shownLanguage());
    } else {
        QWidget::keyPressEvent(event);
    }
}

// The name is read back from the file that has just been written.
void LanguageMenu::on_listWidget_itemClicked(QListWidgetItem *item)
{
    const auto *row = static_cast<LanguageItem *>(ui->listWidget->itemWidget(item));
    Languages &languages = Languages::instance();
    languages.saveName(row->language());
    languages.load(languages.iniPath);
    emit closed();
    close();
}

void LanguageMenu::on_newButton_clicked()
{
    Languages &languages = Languages::instance();
    languages.snapshot = languages.inForce;
    closeMenu();
    UserLanguageEditPopup editor;
    editor.setNewLanguage(true);
    editor.setLanguageFilePath(QString());
    editor.move(window()->geometry().center() - editor.rect().center());
    editor.exec();
}

void LanguageMenu::on_loadButton_clicked()
{
    closeMenu();
    const PlainQuestions questions;
    Languages::instance().loadAnotherPath(QFileDialog::getOpenFileName());
}

// Oddity 46: the path isn't that of the row's file: the button reaches only a file put there by hand.
void LanguageMenu::clickedModifyButton(const QString &language)
{
    closeMenu();
    const QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/languages/language")
        + language + QStringLiteral(".json");
    qDebug() << "LanguageMenu::clickedModifyButton" << path;
    loadLanguageJson(path);
}

void LanguageMenu::loadLanguageJson(const QString &filePath)
{
    if (!Languages::instance().inForce.read(filePath)) {
        qWarning() << "LanguageMenu::loadLanguageJson failed to open file:" << filePath;
    }
}

// Rows that scroll below a pointer at rest aren't entered until it moves.
void LanguageMenu::followPointer()
{
    const QPoint pointer = QCursor::pos();
    const QWidget *rows = ui->listWidget->viewport();
    QWindow *shownIn = window()->windowHandle();
    if (!isVisible() || shownIn == nullptr || QGuiApplication::mouseButtons() != Qt::NoButton
        || !rows->rect().contains(rows->mapFromGlobal(pointer))) {
        return;
    }
    QMouseEvent move(QEvent::MouseMove, shownIn->mapFromGlobal(pointer), pointer, Qt::NoButton, Qt::NoButton,
                     QGuiApplication::keyboardModifiers());
    QCoreApplication::sendEvent(shownIn, &move);
}

void LanguageMenu::closeMenu()
{
    close();
    emit closed();
}
