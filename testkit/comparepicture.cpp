#include "comparepicture.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPixmap>
#include <QTest>
#include <QWidget>

namespace zeplet
{
namespace test
{

namespace
{

constexpr int stillTimeout = 5000; // ms
constexpr int stillPictures = 3;

/** Relative names are the test's own: where it was started. */
const QString home = QDir::currentPath();

/** Null where it never stands still. */
QImage stillPicture(QWidget *widget)
{
    QApplication::setCursorFlashTime(0); // an entry's cursor is shown, whenever that is
    QImage last;
    int same = 0;
    const bool isStill = QTest::qWaitFor(
        [&] {
            const QImage now = widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
            same = now == last ? same + 1 : 0;
            last = now;
            return same >= stillPictures;
        },
        stillTimeout);
    return isStill ? last : QImage();
}

/** The pixels that differ, in red on the faded picture; how many. */
int paintDifference(const QImage &now, const QImage &before, QImage *picture)
{
    int count = 0;
    *picture = now;
    for (int y = 0; y < now.height(); ++y) {
        for (int x = 0; x < now.width(); ++x) {
            const bool differs = now.pixel(x, y) != before.pixel(x, y);
            count += differs;
            const int grey = 192 + qGray(now.pixel(x, y)) / 4;
            picture->setPixel(x, y, differs ? qRgb(255, 0, 0) : qRgb(grey, grey, grey));
        }
    }
    return count;
}

QString sizeText(const QImage &picture)
{
    return QStringLiteral("%1 x %2").arg(picture.width()).arg(picture.height());
}

QString writeNew(const QString &path, const QImage &picture)
{
    if (qgetenv("ZEPLET_TEST_PICTURES") != "write")
        return QStringLiteral("There is no picture %1: run the test once with "
                              "ZEPLET_TEST_PICTURES=write, and look at it.")
            .arg(path);
    return QDir().mkpath(QFileInfo(path).path()) && picture.save(path, "PNG")
        ? QString()
        : QStringLiteral("The picture %1 can't be written.").arg(path);
}

} // namespace

QString comparePictureIn(const QString &directory, QWidget *widget, const QString &file,
                         double tolerance)
{
    if (!widget)
        return QStringLiteral("There is no widget to compare with %1.").arg(file);
    const QImage now = stillPicture(widget);
    if (now.isNull())
        return QStringLiteral("The widget does not stand still: nothing to compare with %1.")
            .arg(file);
    const QString path = QDir(directory).absoluteFilePath(file);
    if (!QFileInfo::exists(path))
        return writeNew(path, now);
    const QImage before = QImage(path).convertToFormat(QImage::Format_RGB32);
    if (before.isNull())
        return QStringLiteral("%1 is no picture.").arg(path);

    const QString left
        = QDir(home).filePath(QFileInfo(file).completeBaseName() + QStringLiteral(".%1.png"));
    const QString seen = left.arg(QStringLiteral("now"));
    if (now.size() != before.size()) {
        now.save(seen);
        return QStringLiteral("%1 is %2, the widget is %3: see %4.")
            .arg(file, sizeText(before), sizeText(now), seen);
    }
    QImage difference;
    const int count = paintDifference(now, before, &difference);
    if (count <= tolerance * now.width() * now.height())
        return {};
    now.save(seen);
    difference.save(left.arg(QStringLiteral("difference")));
    return QStringLiteral("%1 differs in %2 of %3 pixels: see %4.")
        .arg(file)
        .arg(count)
        .arg(now.width() * now.height())
        .arg(left.arg(QStringLiteral("difference")));
}

} // namespace test
} // namespace zeplet
