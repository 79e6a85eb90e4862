#pragma once

#include "marks.h"
#include "text.h"

#include <QTableView>
#include <QVector>

namespace kit
{

class TableModel;

/** What one cell shows: lamp, text with a smaller line below it, marks; or a button. */
struct Cell {
    QString text;
    QString hint;
    Tone tone = Tone::Plain;
    Lamp lamp = Lamp::None;
    QVector<Mark> marks;
    bool button = false; ///< the text is that of a button, which the whole cell is for a finger

    bool operator==(const Cell &other) const;
};

struct Row {
    QString key; ///< tells the row from all others
    QVector<Cell> cells;
};

/**
 * A table for fingers: rows of 56 pixels and more, long texts elided with the whole text as tool
 * tip, one row chosen at a time, words and a pictogram where there are no rows. Names are shown as
 * they are, never as rich text. GUI thread.
 */
class Table : public QTableView
{
    Q_OBJECT

public:
    explicit Table(const Texts &headers, QWidget *parent = nullptr);
    ~Table() override;

    /** Shows these rows. The chosen row stays chosen as long as its key is there, and the place to
     *  which the table was scrolled stays. Cheap where little differs. */
    void setRows(const QVector<Row> &rows);
    /** Pixels by column. 0: the column takes what is left; below 0: as wide, but hidden where too
     *  little would be left. */
    void setWidths(const QVector<int> &widths);
    void setEmptyState(brisa::Glyph glyph, const QString &title, const QString &hint);

    /** The key of the chosen row; empty where none is. */
    QString currentKey() const;
    /** Chooses a row and scrolls to it; false where there is none of that key. */
    bool choose(const QString &key);
    /** The cell at a place that exists. */
    const Cell &cell(int row, int column) const;

Q_SIGNALS:
    void currentKeyChanged(const QString &key);
    /** A cell with a button was tapped. */
    void buttonTapped(const QString &key, int column);
    /** A row was tapped twice. */
    void opened(const QString &key);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;

private:
    QString keyOf(const QModelIndex &index) const;
    void hideWhatIsTooMuch();

    TableModel *m_model;
    QVector<int> m_widths;
    brisa::Glyph m_emptyGlyph = brisa::Glyph::List;
    QString m_emptyTitle;
    QString m_emptyHint;
    QString m_announced;
    bool m_replacing = false; ///< the selection is about to be restored
};

} // namespace kit
