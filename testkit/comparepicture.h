#pragma once

#include <zeplet-test/export.h>

#include <QString>

class QWidget;

// Where the test's sources are; zeplet_add_plugin_test() defines it.
#ifndef ZEPLET_TEST_DIRECTORY
#define ZEPLET_TEST_DIRECTORY ""
#endif

namespace zeplet
{
namespace test
{

/** Compares with the picture of that name in a directory; see comparePicture(). */
ZEPLET_TEST_EXPORT QString comparePictureIn(const QString &directory, QWidget *widget,
                                            const QString &file, double tolerance);

/**
 * Compares a widget, once it stands still, with a PNG beside the test's sources. Empty where they
 * are equal, else one sentence. tolerance: the share of pixels that may differ, 0 to 1.
 *
 * With ZEPLET_TEST_PICTURES=write in the environment the picture is written where there is none.
 * On a difference FILE.now.png and FILE.difference.png (what differs in red) are left in the
 * directory in which the test was started. The cursor in an entry blinks no longer from the first
 * comparison on: pictures show it.
 */
inline QString comparePicture(QWidget *widget, const QString &file, double tolerance = 0)
{
    return comparePictureIn(QStringLiteral(ZEPLET_TEST_DIRECTORY), widget, file, tolerance);
}

} // namespace test
} // namespace zeplet
