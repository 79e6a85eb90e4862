#include "movebar.h"

#include "armfeed.h"
#include "kit/page.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <brisa/elidedlabel.h>
#include <brisa/glyph.h>
#include <brisa/thememanager.h>
#include <brisa/translated.h>
#include <ostrel/moduleobject.h>
#include <zeplet/interface/interfacemanager.h>

using kit::Tone;
using zeplet::zepletInterface;
namespace metrics = brisa::metrics;

namespace
{

constexpr int Speeds[] = {10, 25, 50, 100, 250, 500, 1000}; // mm/s
constexpr int FirstSpeed = 50;
constexpr int StopWidth = 170;
constexpr int StopHeight = 56;
constexpr int Patience = 3000; // ms: a robot that moves has begun by then
constexpr int SettleTime = 250; // ms: an error comes with the end of a move

enum Way { Straight, Joints };

} // namespace

MoveBar::MoveBar(ArmFeed *feed, kit::Page *page)
    : QFrame(page)
    , m_feed(feed)
    , m_page(page)
    , m_fields(new QGridLayout(this))
    , m_title(new brisa::ElidedLabel(QString(), this))
    , m_reason(new QLabel(this))
    , m_texts(makeTexts())
    , m_speed(new QComboBox(this))
    , m_way(new QComboBox(this))
    , m_move(new QPushButton(this))
    , m_stop(new QPushButton(this))
{
    build();
    m_patience.setSingleShot(true);
    m_settle.setSingleShot(true);
    connect(m_move, &QPushButton::clicked, this, &MoveBar::askToMove);
    connect(m_stop, &QPushButton::pressed, this, &MoveBar::stop);
    connect(m_feed, &ArmFeed::changed, this, &MoveBar::follow);
    connect(m_feed, &ArmFeed::moveErrorChanged, this, &MoveBar::tellError);
    connect(&m_patience, &QTimer::timeout, this, &MoveBar::checkStarted);
    connect(&m_settle, &QTimer::timeout, this, &MoveBar::tellEnd);
    connect(brisa::ThemeManager::instance(), &brisa::ThemeManager::themeChanged, this,
            &MoveBar::refreshStop);
}

QWidget *MoveBar::makeTexts()
{
    auto *const texts = new QWidget(this);
    m_title->setFont(brisa::ThemeManager::font(brisa::TextSize::Body, true));
    m_reason->setObjectName(QStringLiteral("moveReason"));
    m_reason->setProperty("role", QStringLiteral("caption"));
    m_reason->setTextFormat(Qt::PlainText);
    m_reason->setWordWrap(true);
    m_reason->setMinimumHeight(
        2 * QFontMetrics(brisa::ThemeManager::font(brisa::TextSize::Caption)).lineSpacing());
    m_reason->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto *const column = new QVBoxLayout(texts);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addStretch(1);
    column->addWidget(m_title);
    column->addWidget(m_reason);
    column->addStretch(1);
    return texts;
}

void MoveBar::build()
{
    setProperty("role", QStringLiteral("card"));
    m_speed->setObjectName(QStringLiteral("moveSpeed"));
    for (const int speed : Speeds)
        m_speed->addItem(QString(), speed);
    m_speed->setCurrentIndex(m_speed->findData(FirstSpeed));
    for (QComboBox *const choice : {m_speed, m_way})
        choice->setSizeAdjustPolicy(QComboBox::AdjustToContents); // to those of each language
    m_way->setObjectName(QStringLiteral("moveWay"));
    m_way->addItems({QString(), QString()});
    m_move->setObjectName(QStringLiteral("moveStart"));
    m_move->setProperty("role", QStringLiteral("primary"));
    m_stop->setObjectName(QStringLiteral("moveStop"));
    m_stop->setMinimumWidth(StopWidth);
    m_stop->setStyleSheet(
        QStringLiteral("min-height: %1px; font-size: 20px; font-weight: bold;").arg(StopHeight));
    m_stop->setIconSize({metrics::Icon + metrics::Grid, metrics::Icon + metrics::Grid});
    m_fields->setContentsMargins(metrics::Margin, metrics::Grid, metrics::Grid, metrics::Grid);
    m_fields->setSpacing(metrics::Grid);
    m_fields->setColumnStretch(0, 1);
    setNarrow(false);
    refreshStop();
    brisa::translated(this, [this] { sayTexts(); });
}

void MoveBar::sayTexts()
{
    for (int i = 0; i < m_speed->count(); ++i)
        m_speed->setItemText(i, tr("%1 mm/s").arg(m_speed->itemData(i).toInt()));
    m_way->setItemText(Straight, tr("Straight"));
    m_way->setItemText(Joints, tr("By joints"));
    m_move->setText(tr("Move"));
    m_stop->setText(tr("STOP"));
}

void MoveBar::setNarrow(bool narrow)
{
    const int row = narrow ? 1 : 0;
    const int column = narrow ? 0 : 1;
    m_fields->addWidget(m_texts, 0, 0, 1, narrow ? 2 : 1);
    m_fields->addWidget(m_speed, row, column);
    m_fields->addWidget(m_way, row, column + 1);
    m_fields->addWidget(m_move, row, column + 2);
    m_fields->addWidget(m_stop, 0, narrow ? 2 : 4);
}

void MoveBar::setTarget(const std::optional<Point> &point)
{
    m_point = point;
    refresh();
}

void MoveBar::refresh()
{
    const QString reason = refusal();
    m_title->setText(m_feed->state().moving && !m_name.isEmpty() ? tr("Moving to %1").arg(m_name)
                         : m_point ? tr("Move to %1").arg(m_point->name)
                                   : tr("Move"));
    m_reason->setText(!reason.isEmpty() ? reason
                          : m_point->elements.size() > 1
                          ? tr("To its first element. Keep clear of the robot.")
                          : tr("Keep clear of the robot."));
    m_move->setEnabled(reason.isEmpty());
    refreshStop();
}

/** Why the robot can't be sent to the point now; empty where it can. */
QString MoveBar::refusal() const
{
    if (!m_feed->state().live)
        return tr("No link. If the robot moves, use the emergency stop.");
    if (m_feed->state().moving || m_phase != Resting)
        return tr("Stop ends the move. Keep clear of the robot.");
    if (!m_point)
        return tr("Choose a point of the table.");
    if (m_point->joint)
        return tr("A joint target can't be moved to: teach it as a pose.");
    if (!m_point->target())
        return tr("It has no position yet: teach it first.");
    if (zepletInterface()->getRobotPhyStatus() == QLatin1String("program"))
        return tr("A program is running: stop it first.");
    if (!zepletInterface()->getRobotEleStatus())
        return tr("The motors are off: switch them on, on the page \"Run\".");
    return QString();
}

// A pose means another place with another tool or work object: nobody must be surprised by that.
void MoveBar::askToMove()
{
    if (!refusal().isEmpty())
        return refresh();
    const Element target = *m_point->target();
    const QString tool = target.tool.isEmpty() ? zepletInterface()->getCurTool() : target.tool;
    const QString wobj = target.wobj.isEmpty() ? zepletInterface()->getCurWobj() : target.wobj;
    if (tool == zepletInterface()->getCurTool() && wobj == zepletInterface()->getCurWobj())
        return move();
    m_page->confirm(
        tr("Move with \"%1\" in \"%2\"?").arg(tool, wobj),
        tr("\"%1\" was taught with that tool in that work object. They get selected, in "
           "place of \"%2\" and \"%3\".")
            .arg(m_point->name, zepletInterface()->getCurTool(), zepletInterface()->getCurWobj()),
        tr("Select and move"), [this, target] {
            selectFrames(target);
            if (refusal().isEmpty())
                move();
        });
}

void MoveBar::selectFrames(const Element &target)
{
    if (!target.tool.isEmpty())
        m(QStringLiteral("tavik.toolpage.tool"))->set(this, target.tool);
    if (!target.wobj.isEmpty())
        m(QStringLiteral("tavik.toolpage.wobj"))->set(this, target.wobj);
}

void MoveBar::move()
{
    m_name = m_point->name;
    m_stopped = false;
    m_phase = Sent;
    m_page->say(Tone::Plain, QString());
    refresh();
    int result = 0;
    zepletInterface()->moveToStart(result, m_name, m_speed->currentData().toInt(),
                                   m_way->currentIndex() == Joints,
                                   m_way->currentIndex() == Joints);
    if (result == 0)
        return m_patience.start(Patience);
    m_phase = Resting;
    if (result == -2)
        tell(Tone::Warning,
             QT_TR_NOOP("\"%1\" has no arm configuration, which a move by joints "
                        "needs: teach it again, or move straight."));
    else
        tell(Tone::Warning,
             QT_TR_NOOP("\"%1\" has no position any more: choose another point, or teach it."));
    refresh();
}

// On the press, not on the release.
void MoveBar::stop()
{
    m_stopped = true;
    zepletInterface()->moveToStop();
    if (!m_feed->state().live) {
        m_page->say(Tone::Error,
                    tr("There is no link, and the robot was not told to stop: if it "
                       "moves, use the emergency stop."));
        return;
    }
    if (m_phase == Resting)
        return m_page->say(Tone::Plain, tr("The robot was told to stop."));
    // It may have begun to move without having said so yet.
    m_patience.stop();
    if (!m_feed->state().moving)
        m_settle.start(SettleTime);
}

void MoveBar::follow()
{
    if (m_phase != Resting && !m_feed->state().live) {
        m_phase = Resting;
        m_patience.stop();
        tell(Tone::Error,
             QT_TR_NOOP("The link was lost on the way to \"%1\": the robot may still be "
                        "moving. Use the emergency stop, and check where it is."));
    } else if (m_phase == Sent && m_feed->state().moving) {
        m_phase = Moving;
        m_patience.stop();
    } else if (m_phase == Moving && !m_feed->state().moving) {
        m_settle.start(SettleTime);
    }
    refresh();
}

void MoveBar::leave()
{
    if (m_phase != Resting)
        zepletInterface()->moveToStop();
    m_stopped = true;
}

void MoveBar::refreshStop()
{
    const bool moving = m_feed->state().moving || m_phase != Resting;
    const brisa::ThemeColours &colours = brisa::ThemeManager::instance()->colours();
    m_stop->setIcon(
        QIcon(brisa::glyphPixmap(brisa::Glyph::Stop, moving ? colours.onAccent : colours.error,
                                 metrics::Icon + metrics::Grid, devicePixelRatioF())));
    const QString role = moving ? QStringLiteral("danger") : QString();
    if (m_stop->property("role").toString() == role)
        return;
    m_stop->setProperty("role", role);
    m_stop->style()->unpolish(m_stop);
    m_stop->style()->polish(m_stop);
}

void MoveBar::checkStarted()
{
    if (m_phase != Sent)
        return;
    m_phase = Resting;
    tell(Tone::Warning,
         QT_TR_NOOP("The robot did not move: it is at \"%1\" already, or the "
                    "controller waits for something. Check its messages."));
    refresh();
}

void MoveBar::tellEnd()
{
    if (m_phase == Resting || m_feed->state().moving)
        return;
    m_phase = Resting;
    if (m_stopped)
        tell(Tone::Plain, QT_TR_NOOP("The robot was stopped on its way to \"%1\"."));
    else
        tell(Tone::Ok, QT_TR_NOOP("The robot is at \"%1\"."));
    refresh();
}

void MoveBar::tellError()
{
    const QString error = m_feed->moveError();
    if (m_phase == Resting || error.isEmpty())
        return;
    m_phase = Resting;
    m_patience.stop();
    tell(Tone::Error,
         QT_TR_NOOP("The robot did not get to \"%1\": %2. Put that right, or choose another way, "
                    "tool or point, and move again."),
         error);
    refresh();
}

void MoveBar::tell(Tone tone, const char *sentence, const QString &detail)
{
    const QString text = tr(sentence);
    m_page->say(tone, detail.isEmpty() ? text.arg(m_name) : text.arg(m_name, detail));
}
