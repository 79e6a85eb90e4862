#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>
#include <zeplet-test/comparepicture.h>

using zeplet::test::comparePictureIn;

namespace
{

/** A square of one colour, with some pixels of another one. */
class Square : public QWidget
{
public:
    explicit Square(int odd = 0, int size = 20)
        : m_odd(odd)
    {
        resize(size, size);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QImage picture(size(), QImage::Format_RGB32);
        picture.fill(Qt::darkGreen);
        for (int x = 0; x < m_odd; ++x)
            picture.setPixel(x, 3, qRgb(0, 0, 0));
        QPainter(this).drawImage(0, 0, picture);
    }

private:
    const int m_odd;
};

} // namespace

class TestComparePicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void missingAndWritten()
    {
        qunsetenv("ZEPLET_TEST_PICTURES");
        Square square;
        const QString missing = compare(&square);
        QVERIFY2(missing.contains("run the test once with ZEPLET_TEST_PICTURES=write"),
                 qPrintable(missing));
        qputenv("ZEPLET_TEST_PICTURES", "write");
        QCOMPARE(compare(&square), QString());
        QCOMPARE(QImage(m_directory.filePath("deep/square.png")).size(), QSize(20, 20));
        Square other(4);
        QVERIFY(!compare(&other).isEmpty()); // what is there is not written over
        qunsetenv("ZEPLET_TEST_PICTURES");
    }

    void equalOrNot()
    {
        Square same;
        QCOMPARE(compare(&same), QString());
        Square odd(4);
        const QString different = compare(&odd);
        QVERIFY2(different.startsWith("deep/square.png differs in 4 of 400 pixels: see "),
                 qPrintable(different));
        QCOMPARE(QImage("square.now.png").pixel(0, 3), qRgb(0, 0, 0));
        QCOMPARE(QImage("square.difference.png").pixel(3, 3), qRgb(255, 0, 0));
        QVERIFY(QImage("square.difference.png").pixel(4, 3) != qRgb(255, 0, 0));
        QCOMPARE(compare(&odd, 0.01), QString());
        QVERIFY(!compare(&odd, 0.009).isEmpty());
        Square large(0, 30);
        QVERIFY(compare(&large, 1).startsWith("deep/square.png is 20 x 20, the widget is 30 x 30"));
        QVERIFY(compare(nullptr).startsWith("There is no widget"));
    }

    void anEntryStandsStill()
    {
        QApplication::setCursorFlashTime(20); // ms
        QLineEdit entry;
        entry.show();
        entry.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&entry));
        qputenv("ZEPLET_TEST_PICTURES", "write");
        for (int i = 0; i < 2; ++i)
            QCOMPARE(comparePictureIn(m_directory.path(), &entry, "entry.png", 0), QString());
        qunsetenv("ZEPLET_TEST_PICTURES");
    }

private:
    QString compare(QWidget *widget, double tolerance = 0) const
    {
        return comparePictureIn(m_directory.path(), widget, "deep/square.png", tolerance);
    }

    QTemporaryDir m_directory;
};

QTEST_MAIN(TestComparePicture)

#include "tst_comparepicture.moc"
