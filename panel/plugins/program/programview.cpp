#include "programview.h"

#include "instructions.h"
#include "kit/marks.h"
#include "linedelegate.h"
#include "programtext.h"

#include <QPainter>
#include <QScrollBar>
#include <QScroller>
#include <brisa/plaintip.h>

ProgramModel::ProgramModel(Instructions *instructions, QObject *parent)
    : QAbstractListModel(parent)
    , m_instructions(instructions)
{
}

void ProgramModel::setLines(const QStringList &lines)
{
    beginResetModel();
    m_lines = lines;
    endResetModel();
}

void ProgramModel::recognise()
{
    if (!m_lines.isEmpty())
        Q_EMIT dataChanged(index(0), index(m_lines.size() - 1));
}

int ProgramModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_lines.size();
}

QVariant ProgramModel::data(const QModelIndex &index, int role) const
{
    const QString line = programtext::shown(m_lines.value(index.row()));
    switch (role) {
    case Qt::DisplayRole:
        return line;
    case Qt::ToolTipRole:
        return brisa::plainTip(line.left(programtext::LongestLine));
    case Qt::UserRole:
        return m_instructions->typeOf(line);
    default:
        return QVariant();
    }
}

ProgramView::ProgramView(Instructions *instructions, QWidget *parent)
    : QListView(parent)
    , m_model(new ProgramModel(instructions, this))
{
    setModel(m_model);
    setItemDelegate(new LineDelegate(this));
    setEditTriggers(NoEditTriggers);
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListView::doubleClicked, this, &ProgramView::opened);
}

// Without this the application would go on asking the recognizer of a view that has gone.
ProgramView::~ProgramView()
{
    if (QScroller::hasScroller(viewport()))
        QScroller::ungrabGesture(viewport());
}

void ProgramView::setLines(const QStringList &lines, int row)
{
    const int place = verticalScrollBar()->value();
    m_model->setLines(lines);
    const QModelIndex nearest = m_model->index(qMin(row, lines.size() - 1));
    setCurrentIndex(nearest);
    verticalScrollBar()->setValue(place);
    scrollTo(nearest);
    Q_EMIT rowChanged();
}

void ProgramView::setEmptyState(brisa::Glyph glyph, const QString &title, const QString &hint)
{
    m_emptyGlyph = glyph;
    m_emptyTitle = title;
    m_emptyHint = hint;
    viewport()->update();
}

void ProgramView::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    if (m_model->rowCount() > 0)
        return;
    QPainter painter(viewport());
    kit::drawEmptyState(&painter, viewport()->rect(), m_emptyGlyph, m_emptyTitle, m_emptyHint);
}

// Not earlier: the page may never be shown in a session.
void ProgramView::showEvent(QShowEvent *event)
{
    QListView::showEvent(event);
    if (!QScroller::hasScroller(viewport()))
        QScroller::grabGesture(viewport(), QScroller::TouchGesture);
}

void ProgramView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    Q_EMIT rowChanged();
}
