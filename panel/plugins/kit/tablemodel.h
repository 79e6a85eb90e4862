#pragma once

#include "table.h"

#include <QAbstractTableModel>

namespace kit
{

/** The rows of a Table. */
class TableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    TableModel(const QStringList &headers, QObject *parent);

    /** As many as before. */
    void setHeaders(const QStringList &headers);
    /** Only tells of the rows that differ where the keys are the same; false where they are not,
     *  and nothing was done. */
    bool update(const QVector<Row> &rows);
    void replace(const QVector<Row> &rows);

    const QVector<Row> &rows() const { return m_rows; }
    const Cell &cell(const QModelIndex &index) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QStringList m_headers;
    QVector<Row> m_rows;
};

} // namespace kit
