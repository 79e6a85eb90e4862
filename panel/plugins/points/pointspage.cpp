#include "pointspage.h"

#include "armview.h"
#include "kit/table.h"
#include "movebar.h"
#include "pointforms.h"
#include "posecard.h"

#include <QComboBox>
#include <QFrame>
#include <QHideEvent>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>
#include <brisa/elidedlabel.h>
#include <brisa/thememanager.h>
#include <brisa/translated.h>
#include <zeplet/interface/interfacemanager.h>

using kit::Tone;
using zeplet::zepletInterface;
namespace metrics = brisa::metrics;

namespace
{

constexpr int KindWidth = 104;
constexpr int ElementsWidth = 92;
constexpr int ListShare = 55;
constexpr int ArmShare = 45;
constexpr int WideFrom = 720; // pixels: list and arm have no room beside each other in less
constexpr int MostMarks = 500;
constexpr float Farthest = 4000; // mm: one place on the moon would make the arm a dot

/** The tool and the work object that all elements were taught in. */
QString frames(const Point &point)
{
    QStringList seen;
    bool hasValues = false;
    for (const Element &element : point.elements) {
        hasValues |= !element.pose.isEmpty() || !element.joints.isEmpty();
        if (!element.tool.isEmpty())
            seen.append(element.tool + QStringLiteral(" · ") + element.wobj);
    }
    seen.removeDuplicates();
    if (seen.isEmpty())
        return hasValues ? PointsPage::tr("Entered by hand") : PointsPage::tr("Not taught yet");
    return seen.size() == 1 ? seen.first() : PointsPage::tr("Several tools or work objects");
}

kit::Row rowOf(const Point &point)
{
    kit::Cell name;
    name.text = point.name;
    name.hint = frames(point);
    kit::Cell kind;
    kind.text = point.joint ? PointsPage::tr("Joint") : PointsPage::tr("Cartesian");
    kind.hint = point.persistent ? PointsPage::tr("Persistent") : QString();
    kit::Cell elements;
    elements.text = QString::number(point.elements.size());
    QStringList sizes;
    for (const int size : point.dimensions)
        sizes.append(QString::number(size));
    elements.hint = sizes.join(QStringLiteral(" × "));
    return {point.name, {name, kind, elements}};
}

QString numbers(const QVector<double> &values, const QStringList &names)
{
    QStringList parts;
    for (int i = 0; i < names.size(); ++i)
        parts.append(names.at(i) + ' ' + QLocale::c().toString(values.value(i), 'f', 1));
    return parts.join(QStringLiteral("  "));
}

QString valuesOf(const Point &point, const Element &element)
{
    if (point.joint && !element.joints.isEmpty())
        return numbers(element.joints, {"J1", "J2", "J3", "J4", "J5", "J6", "J7"});
    if (!point.joint && !element.pose.isEmpty())
        return numbers(element.pose, {"X", "Y", "Z", "A", "B", "C"});
    return PointsPage::tr("No position yet: teach it.");
}

QVector3D placeOf(const Element &element)
{
    return {float(element.pose.at(0)), float(element.pose.at(1)), float(element.pose.at(2))};
}

bool isInBase(const Element &element)
{
    return element.wobj.isEmpty() || element.wobj == QLatin1String("wobj0");
}

} // namespace

PointsPage::PointsPage(QWidget *parent)
    : Page(
        pluginName(), [] { return tr("Points"); }, parent)
    , m_feed(new ArmFeed(pluginName(), this))
    , m_save(addButton([] { return tr("Save again"); }, QStringLiteral("savePoints")))
    , m_new(addButton([] { return tr("Teach a new point"); }, QStringLiteral("newPoint"),
                      QStringLiteral("primary")))
{
    auto *const row = new QHBoxLayout;
    row->setSpacing(metrics::Margin);
    row->addLayout(makeList(), ListShare);
    m_armCard = makeArm();
    row->addWidget(m_armCard, ArmShare);
    body()->addLayout(row, 1);
    m_bar = new MoveBar(m_feed, this);
    body()->addWidget(m_bar);
    m_save->hide();
    connect(m_new, &QPushButton::clicked, this, &PointsPage::teachNew);
    connect(m_save, &QPushButton::clicked, this,
            [this] { edit(tr("Saving the points"), pointedits::save); });
    connect(m_feed, &ArmFeed::changed, this, &PointsPage::followArm);
    connect(brisa::ThemeManager::instance(), &brisa::ThemeManager::themeChanged, this,
            &PointsPage::refreshChosen);
    follow({QStringLiteral("tavik.project.point._list"),
            QStringLiteral("tavik.project.point.hot_update.operate"),
            QStringLiteral("tavik.project.cur_project"), QStringLiteral("tavik.toolpage.tool"),
            QStringLiteral("tavik.toolpage.wobj"), QStringLiteral("brisa.r.power"),
            QStringLiteral("brisa.r.state")});
}

QString PointsPage::pluginName()
{
    return QStringLiteral("page-points");
}

QPushButton *PointsPage::makeKey(const kit::Text &text, const char *objectName)
{
    auto *const key = new QPushButton(this);
    brisa::translated(key, [key, text] { key->setText(text()); });
    key->setObjectName(QLatin1String(objectName));
    return key;
}

QLayout *PointsPage::makeList()
{
    m_table = new kit::Table(
        [] {
            return QStringList {tr("Point"), tr("Kind"), tr("Elements")};
        },
        this);
    m_table->setObjectName(QStringLiteral("points"));
    m_table->setWidths({0, KindWidth, ElementsWidth});
    m_table->setMinimumHeight(2 * metrics::Touch);
    m_elements = new QComboBox(this);
    m_elements->setObjectName(QStringLiteral("elements"));
    m_add = makeKey([] { return tr("Add element"); }, "addElement");
    m_removeElement = makeKey([] { return tr("Delete element"); }, "removeElement");
    m_values = new brisa::ElidedLabel(QString(), this);
    m_values->setObjectName(QStringLiteral("values"));
    m_values->setFont(brisa::ThemeManager::font(brisa::TextSize::Caption));
    m_teach = makeKey([] { return tr("Teach here"); }, "teachPoint");
    m_edit = makeKey([] { return tr("Edit values"); }, "editPoint");
    m_delete = makeKey([] { return tr("Delete point"); }, "deletePoint");
    auto *const elements = new QHBoxLayout;
    elements->setSpacing(metrics::Grid);
    elements->addWidget(m_elements, 1);
    elements->addWidget(m_add);
    elements->addWidget(m_removeElement);
    auto *const keys = new QHBoxLayout;
    keys->setSpacing(metrics::Grid);
    for (QPushButton *const key : {m_teach, m_edit, m_delete})
        keys->addWidget(key, 1);
    auto *const column = new QVBoxLayout;
    column->setSpacing(metrics::Grid);
    column->addWidget(m_table, 1);
    column->addLayout(elements);
    column->addWidget(m_values);
    column->addLayout(keys);
    connect(m_table, &kit::Table::currentKeyChanged, this, &PointsPage::refreshChosen);
    connect(m_table, &kit::Table::opened, this, &PointsPage::editValues);
    connect(m_elements, QOverload<int>::of(&QComboBox::activated), this,
            &PointsPage::refreshChosen);
    connect(m_add, &QPushButton::clicked, this, &PointsPage::addElement);
    connect(m_removeElement, &QPushButton::clicked, this, &PointsPage::removeElement);
    connect(m_teach, &QPushButton::clicked, this, &PointsPage::teach);
    connect(m_edit, &QPushButton::clicked, this, &PointsPage::editValues);
    connect(m_delete, &QPushButton::clicked, this, &PointsPage::remove);
    return column;
}

QFrame *PointsPage::makeArm()
{
    auto *const card = new QFrame(this);
    card->setProperty("role", QStringLiteral("card"));
    m_arm = new ArmView(card);
    m_arm->setObjectName(QStringLiteral("armView"));
    m_pose = new PoseCard(card);
    auto *const column = new QVBoxLayout(card);
    column->setContentsMargins(1, 1, 1, 1);
    column->setSpacing(0);
    column->addWidget(m_arm, 1);
    column->addWidget(m_pose);
    return card;
}

void PointsPage::refresh()
{
    const QString project = zepletInterface()->getCurProject();
    if (std::exchange(m_project, project) != project)
        m_unsaved = false;
    m_points = readPoints();
    QVector<kit::Row> rows;
    rows.reserve(m_points.size());
    for (const Point &point : qAsConst(m_points))
        rows.append(rowOf(point));
    m_table->setRows(rows);
    const bool live = zepletInterface()->getRobotConnected();
    m_table->setEmptyState(brisa::Glyph::Target, tr("No points yet"),
                           live ? tr("Drive the robot to a place and teach it.")
                                : tr("They can be taught when the controller is connected."));
    const QString name = project.section('/', -1);
    setSubtitle(!live ? tr("No link to the controller: nothing can be taught or changed")
                    : name.isEmpty()
                    ? tr("No project is open: these points belong to none")
                    : tr("Project %1, points: %2").arg(name, QString::number(rows.size())));
    m_save->setVisible(m_unsaved);
    m_feed->read();
    refreshChosen();
}

void PointsPage::refreshChosen()
{
    const Point *const point = chosen();
    refreshElements(point);
    const Element *const element = chosenElement();
    m_values->setText(element ? valuesOf(*point, *element) : QString());
    m_values->setColour(brisa::ThemeManager::instance()->colours().mutedText);
    refreshKeys(point, element);
    refreshMarks();
    m_bar->setTarget(point ? std::optional<Point>(*point) : std::nullopt);
}

void PointsPage::refreshElements(const Point *point)
{
    QStringList indexes;
    if (point) {
        for (const Element &element : point->elements)
            indexes.append(element.index);
    }
    QStringList shown;
    for (int i = 0; i < m_elements->count(); ++i)
        shown.append(m_elements->itemText(i));
    if (shown != indexes) {
        const QString kept = m_elements->currentText();
        m_elements->clear();
        m_elements->addItems(indexes);
        m_elements->setCurrentIndex(qMax(0, indexes.indexOf(kept)));
    }
}

// Nothing is taught or changed while the robot moves: the keys would cover the one that stops it.
void PointsPage::refreshKeys(const Point *point, const Element *element)
{
    const bool ready = zepletInterface()->getRobotConnected() && !m_feed->state().moving;
    m_elements->setEnabled(point && point->elements.size() > 1);
    m_new->setEnabled(ready);
    m_save->setEnabled(ready);
    m_add->setEnabled(ready && point);
    m_removeElement->setEnabled(ready && element && point->elements.size() > 1);
    m_teach->setEnabled(ready && element);
    m_edit->setEnabled(ready && element);
    m_delete->setEnabled(ready && point);
}

void PointsPage::refreshMarks()
{
    const Point *const point = chosen();
    const Element *const element = chosenElement();
    QVector<PlaceMark> marks;
    int joints = 0;
    int elsewhere = 0;
    int far = 0;
    for (const Point &each : qAsConst(m_points)) {
        joints += each.joint ? 1 : 0;
        for (const Element &one : each.elements) {
            if (each.joint || one.pose.isEmpty())
                continue;
            const bool isChosen = &each == point && &one == element;
            const QString label
                = each.elements.size() > 1 ? each.name + ' ' + one.index : each.name;
            if (!isInBase(one))
                ++elsewhere;
            else if (!(placeOf(one).length() < Farthest))
                ++far;
            else if (isChosen || marks.size() < MostMarks)
                marks.append({label, placeOf(one), isChosen});
        }
    }
    QStringList left;
    if (joints > 0)
        left.append(tr("joint targets: %1").arg(joints));
    if (elsewhere > 0)
        left.append(tr("in other work objects: %1").arg(elsewhere));
    if (far > 0)
        left.append(tr("too far away: %1").arg(far));
    m_arm->setMarks(marks,
                    left.isEmpty() ? QString()
                                   : tr("Not drawn: %1").arg(left.join(QStringLiteral(", "))));
}

void PointsPage::followArm()
{
    const ArmState &state = m_feed->state();
    m_arm->setState(state);
    m_pose->setState(state);
    if (std::exchange(m_wasMoving, state.moving) != state.moving)
        refreshKeys(chosen(), chosenElement());
}

void PointsPage::hideEvent(QHideEvent *event)
{
    if (!event->spontaneous())
        m_bar->leave();
    Page::hideEvent(event);
}

// Less than what it needs, where the arm is shown, for it can make room.
QSize PointsPage::minimumSizeHint() const
{
    const QSize needed = Page::minimumSizeHint();
    return m_narrow ? needed : QSize(qMin(needed.width(), WideFrom - 1), needed.height());
}

// A page that is scrolled could hide the key that stops the robot: the arm's picture goes first.
void PointsPage::resizeEvent(QResizeEvent *event)
{
    Page::resizeEvent(event);
    const bool narrow = width() < WideFrom;
    if (std::exchange(m_narrow, narrow) == narrow)
        return;
    m_armCard->setVisible(!narrow);
    m_bar->setNarrow(narrow);
}

/** Carries an edit out, with the page locked meanwhile, and tells what became of it. */
void PointsPage::edit(const QString &title, std::function<Outcome()> job, const QString &choose)
{
    work(title, [this, job = std::move(job), choose] {
        const Outcome outcome = job();
        if (outcome.kind != Outcome::Refused)
            m_unsaved = outcome.kind == Outcome::Unsaved;
        say(outcome.kind == Outcome::Done ? Tone::Ok : Tone::Error, outcome.sentence);
        refresh();
        if (!choose.isEmpty())
            m_table->choose(choose);
    });
}

void PointsPage::teachNew()
{
    pointforms::askForNew(
        this, m_points, [this](const QString &name, bool persistent, const Teaching &teaching) {
            edit(
                tr("Teaching \"%1\"").arg(name),
                [=] { return pointedits::teachNew(name, persistent, teaching); }, name);
        });
}

void PointsPage::teach()
{
    if (!chosenElement())
        return;
    const Point point = *chosen();
    const QString index = chosenElement()->index;
    pointforms::askToTeach(this, point, *chosenElement(), [=](const Teaching &teaching) {
        edit(tr("Teaching \"%1\"").arg(point.name),
             [=] { return pointedits::teach(point, index, teaching); });
    });
}

void PointsPage::editValues()
{
    if (!m_edit->isEnabled())
        return;
    const Point point = *chosen();
    const QString index = chosenElement()->index;
    pointforms::askForValues(this, point, *chosenElement(), m_feed->state().limits,
                             [=](const QVector<double> &values) {
                                 edit(tr("Saving \"%1\"").arg(point.name),
                                      [=] { return pointedits::setValues(point, index, values); });
                             });
}

void PointsPage::addElement()
{
    if (!chosen())
        return;
    const Point point = *chosen();
    pointforms::askForIndex(this, point, [=](const QString &index) {
        edit(tr("Adding %1 to \"%2\"").arg(index, point.name), [=] {
            const Outcome outcome = pointedits::addElement(point, index);
            refresh();
            m_elements->setCurrentText(index);
            return outcome;
        });
    });
}

void PointsPage::removeElement()
{
    if (!chosenElement())
        return;
    const Point point = *chosen();
    const QString index = chosenElement()->index;
    confirm(tr("Delete %1 of \"%2\"?").arg(index, point.name),
            tr("Its position is lost, and programs that use it fail."), tr("Delete"), [=] {
                edit(tr("Deleting %1 of \"%2\"").arg(index, point.name),
                     [=] { return pointedits::removeElement(point, index); });
            });
}

void PointsPage::remove()
{
    if (!chosen())
        return;
    const Point point = *chosen();
    QString text = tr("Its position is lost, and programs that use it fail.");
    if (point.elements.size() > 1)
        text = tr("All its %1 positions are lost, and programs that use them fail.")
                   .arg(point.elements.size());
    if (point.persistent)
        text += QStringLiteral("\n\n")
            + tr("It is persistent: the controller forgets what programs have stored in it, too.");
    confirm(tr("Delete the point \"%1\"?").arg(point.name), text, tr("Delete"), [=] {
        edit(tr("Deleting \"%1\"").arg(point.name), [=] { return pointedits::remove(point); });
    });
}

const Point *PointsPage::chosen() const
{
    const QString key = m_table->currentKey();
    for (const Point &point : m_points) {
        if (!key.isEmpty() && point.name == key)
            return &point;
    }
    return nullptr;
}

const Element *PointsPage::chosenElement() const
{
    const Point *const point = chosen();
    return point ? point->element(m_elements->currentText()) : nullptr;
}
