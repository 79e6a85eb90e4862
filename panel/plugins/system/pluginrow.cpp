#include "pluginrow.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace
{

QLabel *makeLabel(const QString &text, const QString &role, QWidget *parent)
{
    auto *const label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText); // names and sentences come from files
    label->setProperty("role", role);
    return label;
}

QString stateRole(const QString &state)
{
    if (state == QLatin1String("running"))
        return QStringLiteral("ok");
    return state == QLatin1String("left out") ? QStringLiteral("warning") : QStringLiteral("error");
}

QString stateText(const QString &state)
{
    if (state == QLatin1String("running"))
        return PluginRow::tr("Running");
    if (state == QLatin1String("left out"))
        return PluginRow::tr("Left out");
    return state == QLatin1String("faulty") ? PluginRow::tr("Faulty") : PluginRow::tr("Not loaded");
}

QString origin(const QJsonObject &record)
{
    const QString file = record.value(QLatin1String("file")).toString();
    const QString library = record.value(QLatin1String("library")).toString();
    if (library.isEmpty())
        return file;
    return PluginRow::tr("%1, built against library %2 and Qt %3")
        .arg(file, library, record.value(QLatin1String("qt")).toString());
}

} // namespace

PluginRow::PluginRow(const QJsonObject &record, QWidget *parent)
    : QFrame(parent)
{
    const QString name = record.value(QLatin1String("name")).toString();
    const QString state = record.value(QLatin1String("state")).toString();
    const QString sentence = record.value(QLatin1String("sentence")).toString();
    setProperty("role", QStringLiteral("card"));

    auto *const grid = new QGridLayout(this);
    grid->setContentsMargins(16, 12, 16, 12);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(4);
    grid->setColumnStretch(0, 1);
    grid->addWidget(makeLabel(name, QStringLiteral("title"), this), 0, 0);
    grid->addWidget(makeLabel(stateText(state), stateRole(state), this), 0, 1, Qt::AlignRight);
    grid->addWidget(makeLabel(origin(record), QStringLiteral("caption"), this), 1, 0, 1, 2);
    if (!sentence.isEmpty()) {
        QLabel *const label = makeLabel(sentence, QStringLiteral("body"), this);
        label->setWordWrap(true);
        grid->addWidget(label, 2, 0);
    }
    if (state == QLatin1String("left out")) {
        auto *const button = new QPushButton(tr("Try again"), this);
        button->setObjectName(QStringLiteral("tryAgain"));
        grid->addWidget(button, 2, 1, Qt::AlignRight | Qt::AlignBottom);
        connect(button, &QPushButton::clicked, this, [this, name] { Q_EMIT tryAgain(name); });
    }
}
