#include "eventtable.h"

#include <zeplet/zeplet.h>

#include <QEvent>
#include <QHeaderView>
#include <QJsonDocument>
#include <QPainter>
#include <QTextDocument>

namespace
{
constexpr int maximumRows = 200;
constexpr int longestColumn = 280; // longer texts are elided; the tool tip has them whole
constexpr int touchHeight = 53; // a finger's width on the panel

} // namespace

QString EventTable::dataText(const QVariant &data)
{
    if (!data.isValid())
        return QStringLiteral("–");
    const QJsonDocument json = QJsonDocument::fromVariant(data);
    return json.isNull() ? data.toString() : QString::fromUtf8(json.toJson(QJsonDocument::Compact));
}

EventTable::EventTable(QWidget *parent)
    : QTableWidget(0, 5, parent)
{
    translate();
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setMaximumSectionSize(longestColumn);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(touchHeight);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setFocusPolicy(Qt::NoFocus);
}

void EventTable::changeEvent(QEvent *event)
{
    QTableWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        translate();
}

void EventTable::translate()
{
    setHorizontalHeaderLabels({tr("Time"), tr("No."), tr("Event"), tr("Source"), tr("Data")});
}

void EventTable::add(const zeplet::ZepletEvent &event)
{
    const QStringList texts = {
        event.timestamp.toLocalTime().toString(QStringLiteral("hh:mm:ss.zzz")),
        QString::number(event.seq),
        zeplet::eventTypeToString(event.type),
        event.source,
        dataText(event.data),
    };
    insertRow(0);
    for (int column = 0; column < texts.size(); ++column) {
        auto *item = new QTableWidgetItem(texts.at(column));
        item->setToolTip(Qt::convertFromPlainText(texts.at(column))); // data is no markup
        setItem(0, column, item);
    }
    setRowCount(qMin(rowCount(), maximumRows));
}

void EventTable::paintEvent(QPaintEvent *event)
{
    QTableWidget::paintEvent(event);
    if (rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter, tr("No events yet"));
}
