#include "fuzz/standins.h"

#include <QFileDialog>
#include <QWidget>

QString standins::chosenFile;

QString QFileDialog::getOpenFileName(QWidget * /*parent*/, const QString & /*caption*/,
                                     const QString & /*dir*/, const QString & /*filter*/,
                                     QString * /*selectedFilter*/, Options /*options*/)
{
    return standins::chosenFile;
}

// How a page looks doesn't matter where nothing is painted.
void QWidget::setStyleSheet(const QString & /*styleSheet*/) {}
