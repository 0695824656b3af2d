#include "pages/style.h"

#include "support/window.h"

// How pages give widgets their looks.
class TestStyle : public QObject
{
    Q_OBJECT

private slots:
    void sheetIsSetWhenItDiffers();

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        changes += event->type() == QEvent::StyleChange ? 1 : 0;
        return QObject::eventFilter(object, event);
    }

private:
    int changes = 0;
};

void TestStyle::sheetIsSetWhenItDiffers()
{
    QLabel label;
    label.installEventFilter(this);
    label.ensurePolished();
    style::apply(&label, style::labelText(true));
    QCOMPARE(label.styleSheet(), style::labelText(true));
    QVERIFY(changes > 0);
    // A sheet that is there already isn't read again.
    changes = 0;
    style::apply(&label, style::labelText(true));
    QCOMPARE(changes, 0);
    style::apply(&label, style::labelText(false));
    QCOMPARE(label.styleSheet(), style::labelText(false));
    QVERIFY(changes > 0);
    style::apply(&label, QString());
    QCOMPARE(label.styleSheet(), QString());
}

CALORA_TEST_MAIN(TestStyle)
#include "tst_style.moc"
