#pragma once

#include <QTest>

namespace testcolumns_detail
{
template <typename>
using Name = const char *;
} // namespace testcolumns_detail

/**
 * Declares the columns of a data table. The function it returns adds one row, the row's name first;
 * each value is converted to the type of its column.
 */
template <typename... Types>
auto testcolumns(testcolumns_detail::Name<Types>... names)
{
    (QTest::addColumn<Types>(names), ...);
    return [](const char *rowName, const Types &...values) {
        QTestData &row = QTest::newRow(rowName);
        (row << ... << values);
    };
}
