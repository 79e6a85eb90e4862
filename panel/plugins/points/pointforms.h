#pragma once

#include "pointedits.h"

#include <QPair>
#include <functional>

namespace kit
{
class Page;
}

/** What the page of points asks for. Each opens an overlay of the page. */
namespace pointforms
{

void askForNew(
    kit::Page *page, const QVector<Point> &points,
    std::function<void(const QString &name, bool persistent, const Teaching &)> accepted);
void askToTeach(kit::Page *page, const Point &point, const Element &element,
                std::function<void(const Teaching &)> accepted);
/** limits: those of the axes in degrees, as far as they are known. */
void askForValues(kit::Page *page, const Point &point, const Element &element,
                  const QVector<QPair<double, double>> &limits,
                  std::function<void(const QVector<double> &)> accepted);
void askForIndex(kit::Page *page, const Point &point,
                 std::function<void(const QString &index)> accepted);

} // namespace pointforms
