#include "tablemodel.h"

#include <algorithm>
#include <brisa/plaintip.h>

namespace kit
{

TableModel::TableModel(const QStringList &headers, QObject *parent)
    : QAbstractTableModel(parent)
    , m_headers(headers)
{
}

void TableModel::setHeaders(const QStringList &headers)
{
    m_headers = headers;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, m_headers.size() - 1);
}

bool TableModel::update(const QVector<Row> &rows)
{
    const auto sameKey = [](const Row &a, const Row &b) { return a.key == b.key; };
    if (!std::equal(rows.begin(), rows.end(), m_rows.begin(), m_rows.end(), sameKey))
        return false;
    for (int row = 0; row < rows.size(); ++row) {
        if (rows.at(row).cells == m_rows.at(row).cells)
            continue;
        m_rows[row] = rows.at(row);
        Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
    }
    return true;
}

void TableModel::replace(const QVector<Row> &rows)
{
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

const Cell &TableModel::cell(const QModelIndex &index) const
{
    static const Cell none;
    const QVector<Cell> &cells = m_rows.at(index.row()).cells;
    return index.column() < cells.size() ? cells.at(index.column()) : none;
}

int TableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int TableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_headers.size();
}

QVariant TableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    if (role == Qt::DisplayRole)
        return cell(index).text;
    if (role == Qt::ToolTipRole) {
        const Cell &shown = cell(index);
        return brisa::plainTip(shown.text + (shown.hint.isEmpty() ? QString() : '\n' + shown.hint));
    }
    if (role == Qt::AccessibleDescriptionRole) {
        QStringList marks;
        for (const Mark &mark : cell(index).marks)
            marks.append(mark.text);
        return marks.join(QStringLiteral(", "));
    }
    return QVariant();
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return m_headers.value(section);
    return QVariant();
}

} // namespace kit
