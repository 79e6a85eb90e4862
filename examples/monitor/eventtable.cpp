#include "eventtable.h"

#include <zeplet/zeplet.h>

#include <QHeaderView>
#include <QJsonDocument>

namespace
{
constexpr int maximumRows = 200;
constexpr int touchHeight = 53; // a finger's width on the panel

QString dataText(const QVariant &data)
{
    if (!data.isValid())
        return QStringLiteral("–");
    const QJsonDocument json = QJsonDocument::fromVariant(data);
    return json.isNull() ? data.toString() : QString::fromUtf8(json.toJson(QJsonDocument::Compact));
}
} // namespace

EventTable::EventTable(QWidget *parent)
    : QTableWidget(0, 5, parent)
{
    setHorizontalHeaderLabels({tr("Time"), tr("No."), tr("Event"), tr("Source"), tr("Data")});
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(touchHeight);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setFocusPolicy(Qt::NoFocus);
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
        item->setToolTip(texts.at(column));
        setItem(0, column, item);
    }
    setRowCount(qMin(rowCount(), maximumRows));
}
