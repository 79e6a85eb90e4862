#include "table.h"

#include "celldelegate.h"
#include "tablemodel.h"

#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QScroller>
#include <algorithm>
#include <brisa/thememanager.h>
#include <brisa/translated.h>

namespace kit
{

namespace metrics = brisa::metrics;

namespace
{

constexpr int LeastRest = 220;

} // namespace

bool Cell::operator==(const Cell &other) const
{
    return text == other.text && hint == other.hint && tone == other.tone && lamp == other.lamp
        && marks == other.marks && button == other.button;
}

Table::Table(const Texts &headers, QWidget *parent)
    : QTableView(parent)
    , m_model(new TableModel(headers(), this))
{
    setModel(m_model);
    brisa::translated(this, [this, headers] { m_model->setHeaders(headers()); });
    setItemDelegate(new CellDelegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setWordWrap(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(metrics::Touch);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    connect(this, &QTableView::clicked, this, [this](const QModelIndex &index) {
        const Cell &tapped = m_model->cell(index);
        if (tapped.button && !tapped.text.isEmpty())
            Q_EMIT buttonTapped(keyOf(index), index.column());
    });
    connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex &index) {
        if (!m_model->cell(index).button)
            Q_EMIT opened(keyOf(index));
    });
}

// Without this the application would go on asking the recognizer of a table that has gone.
Table::~Table()
{
    if (QScroller::hasScroller(viewport()))
        QScroller::ungrabGesture(viewport());
}

void Table::setRows(const QVector<Row> &rows)
{
    if (m_model->update(rows))
        return;
    const QString key = currentKey();
    const int place = verticalScrollBar()->value();
    m_replacing = true;
    m_model->replace(rows);
    const auto chosen
        = std::find_if(rows.begin(), rows.end(), [&](const Row &row) { return row.key == key; });
    if (!key.isEmpty() && chosen != rows.end())
        selectRow(static_cast<int>(chosen - rows.begin()));
    verticalScrollBar()->setValue(place);
    m_replacing = false;
    selectionChanged(QItemSelection(), QItemSelection());
}

void Table::setWidths(const QVector<int> &widths)
{
    m_widths = widths;
    for (int column = 0; column < widths.size(); ++column) {
        const bool rest = widths.at(column) == 0;
        horizontalHeader()->setSectionResizeMode(column,
                                                 rest ? QHeaderView::Stretch : QHeaderView::Fixed);
        if (!rest)
            setColumnWidth(column, qAbs(widths.at(column)));
    }
    hideWhatIsTooMuch();
}

// Beside a plugin's side bar, names have to stay legible.
void Table::hideWhatIsTooMuch()
{
    int taken = 0;
    for (const int width : qAsConst(m_widths))
        taken += qAbs(width);
    const bool tooMuch = viewport()->width() - taken < LeastRest;
    for (int column = 0; column < m_widths.size(); ++column)
        setColumnHidden(column, tooMuch && m_widths.at(column) < 0);
}

void Table::setEmptyState(brisa::Glyph glyph, const QString &title, const QString &hint)
{
    m_emptyGlyph = glyph;
    m_emptyTitle = title;
    m_emptyHint = hint;
    viewport()->update();
}

QString Table::currentKey() const
{
    const QModelIndexList chosen = selectionModel()->selectedRows();
    return chosen.isEmpty() ? QString() : keyOf(chosen.first());
}

bool Table::choose(const QString &key)
{
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (m_model->rows().at(row).key != key)
            continue;
        selectRow(row);
        scrollTo(m_model->index(row, 0));
        return true;
    }
    return false;
}

const Cell &Table::cell(int row, int column) const
{
    return m_model->cell(m_model->index(row, column));
}

void Table::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (m_model->rowCount() > 0 || m_emptyTitle.isEmpty())
        return;
    QPainter painter(viewport());
    drawEmptyState(&painter, viewport()->rect(), m_emptyGlyph, m_emptyTitle, m_emptyHint);
}

void Table::resizeEvent(QResizeEvent *event)
{
    hideWhatIsTooMuch();
    QTableView::resizeEvent(event);
}

// Not earlier: most pages are never shown in a session.
void Table::showEvent(QShowEvent *event)
{
    QTableView::showEvent(event);
    if (!QScroller::hasScroller(viewport()))
        QScroller::grabGesture(viewport(), QScroller::TouchGesture);
}

void Table::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QTableView::selectionChanged(selected, deselected);
    if (m_replacing)
        return;
    const QString key = currentKey();
    if (key == m_announced)
        return;
    m_announced = key;
    Q_EMIT currentKeyChanged(key);
}

QString Table::keyOf(const QModelIndex &index) const
{
    return m_model->rows().at(index.row()).key;
}

} // namespace kit
