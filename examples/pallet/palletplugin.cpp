// The places of a pallet: one point with many elements, made from the first, which is taught. Shows
// array points, and how a plugin changes many elements in the data store and saves and sends them
// once.
#include <ostrel/moduleobject.h>
#include <zeplet/projectdata/datafile.h>
#include <zeplet/projectdata/pointhotupdate.h>
#include <zeplet/projectdata/pointrecords.h>
#include <zeplet/projectdata/pointsaving.h>
#include <zeplet/projectdata/pointteaching.h>
#include <zeplet/zeplet.h>

#include <QDir>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <functional>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("pallet");
const QString palletPoint = QStringLiteral("pallet"), parkPoint = QStringLiteral("park");
const QString heightField = QStringLiteral("pose.frame.pos.z");

ostrel::ModuleObject *pointList()
{
    return m(QStringLiteral("tavik.project.point._list"));
}

ostrel::ModuleObject *palletRecord(int *position = nullptr)
{
    return findPointByName(pointList(), palletPoint, position);
}

QString indexOf(int place)
{
    return normalizePointValueIndex(QStringLiteral("[%1]").arg(place));
}

using Sentence = std::function<QString()>; // to be said again in another language
} // namespace

class PalletPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit PalletPlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(QT_TRANSLATE_NOOP("navigation", "My pallet"));
    }

    void init() override;
    void detach() override { delete m_page; }
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void translate();
    void say(const Sentence &sentence);
    void createButtons(QGridLayout *layout);
    bool ensurePallet();
    bool makePlaces();
    bool teach();
    bool raise(double millimetres);
    bool removePlace();
    bool makePark();
    bool backUp();
    void refresh();

    QPointer<QWidget> m_page;
    QListWidget *m_places = nullptr;
    QSpinBox *m_count = nullptr;
    QSpinBox *m_distance = nullptr;
    QLabel *m_notice = nullptr;
    Sentence m_sentence = [] {
        return tr("Move the robot to the first place and teach it, then make the others.");
    };
    Sentence m_outcome; ///< what an action has to say beside that it is done
};

void PalletPlugin::init()
{
    m_page = new QWidget;
    m_page->installEventFilter(this);
    auto *layout = new QGridLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    m_count = new QSpinBox;
    m_count->setRange(1, 20);
    m_count->setValue(4);
    m_distance = new QSpinBox;
    m_distance->setRange(1, 500);
    m_distance->setValue(80);
    m_places = new QListWidget;
    m_notice = new QLabel;
    m_notice->setWordWrap(true);
    layout->addWidget(m_count, 0, 0);
    layout->addWidget(m_distance, 0, 1);
    createButtons(layout);
    layout->addWidget(m_places, 2, 0, 1, 5);
    layout->addWidget(m_notice, 3, 0, 1, 5);
    translate();
    CreateCenterWidget(pluginName, m_page);
    for (const char *key : {"tavik.project.point._list", "tavik.project.point.hot_update.operate"})
        connect(m(key), &ostrel::ModuleObject::changed, m_page, [this] { refresh(); });
}

// The page hears of another language.
bool PalletPlugin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translate();
    return PluginBase::eventFilter(watched, event);
}

void PalletPlugin::translate()
{
    for (QPushButton *button : m_page->findChildren<QPushButton *>())
        button->setText(tr(qUtf8Printable(button->objectName()))); // its name is in English
    m_count->setSuffix(tr(" places"));
    m_distance->setSuffix(tr(" mm apart"));
    say(m_sentence);
    refresh();
}

void PalletPlugin::say(const Sentence &sentence)
{
    m_sentence = sentence;
    m_notice->setText(m_sentence());
}

void PalletPlugin::createButtons(QGridLayout *layout)
{
    const auto addButton = [=](int row, int column, const char *text, const auto &action) {
        auto *button = new QPushButton;
        button->setObjectName(text);
        layout->addWidget(button, row, column);
        connect(button, &QPushButton::clicked, this, [=] {
            m_outcome = nullptr;
            const bool done = action();
            say(m_outcome ? m_outcome : [=] {
                return (done ? tr("%1: done.")
                             : tr("%1: not all of it reached the controller. The log says why."))
                    .arg(tr(text));
            });
            refresh();
        });
    };
    addButton(0, 2, QT_TR_NOOP("Teach place"), [this] { return teach(); });
    addButton(0, 3, QT_TR_NOOP("Make places"), [this] { return makePlaces(); });
    addButton(0, 4, QT_TR_NOOP("Remove place"), [this] { return removePlace(); });
    addButton(1, 0, QT_TR_NOOP("Raise all 10 mm"), [this] { return raise(10); });
    addButton(1, 1, QT_TR_NOOP("Park position"), [this] { return makePark(); });
    addButton(1, 2, QT_TR_NOOP("Back up"), [this] { return backUp(); });
}

bool PalletPlugin::ensurePallet()
{
    return palletRecord() || zepletInterface()->createPoint(palletPoint, false, true);
}

// The selected place, or the first one: the robot's position now. A controller that does not answer
// teaches nothing.
bool PalletPlugin::teach()
{
    InterfaceManager *const robot = zepletInterface();
    const QString tool = robot->getCurTool(), wobj = robot->getCurWobj();
    const QJsonValue position = robot->getCurrentPointData(tool, wobj);
    const QString index = indexOf(qMax(0, m_places->currentRow()));
    if (position.isNull()) {
        m_outcome
            = [] { return tr("The controller says no position. Connect it, then try again."); };
        return false;
    }
    if (!ensurePallet() || !robot->ensurePointElement(palletPoint, index))
        return false;
    ostrel::ModuleObject report;
    report.importFromJson(nullptr, position, true, true, true);
    int place = -1;
    ostrel::ModuleObject *const record = palletRecord(&place);
    fillPointValueFromCurrentPose(record->child("value")->child(index), false,
                                  report.child("joint"), report.child("cartesian"), tool, wobj);
    return syncPointElementAfterEdit(record, place, index);
}

// Each place is the first one, moved along x.
bool PalletPlugin::makePlaces()
{
    InterfaceManager *const robot = zepletInterface();
    const QJsonObject record = robot->getPointObjDataByName(palletPoint);
    QJsonObject first = record["value"].toObject().value(indexOf(0)).toObject();
    if (!first.contains("pose")) {
        m_outcome = [] { return tr("Teach the first place first."); };
        return false;
    }
    ostrel::ModuleObject element;
    const double start = robot->getPointDataByName(palletPoint, QString()).value(0);
    for (int place = 1; place < m_count->value(); ++place) {
        element.importFromJson(nullptr, first, true, true, true);
        element.set(nullptr, "pose.frame.pos.x", start + place * m_distance->value(), true);
        if (!robot->setPointElementJson(palletPoint, indexOf(place),
                                        element.exportToJson(true).toObject()))
            return false;
    }
    return true;
}

// Straight in the data store, since each edit through InterfaceManager would save and send the
// whole file. The controller hears of the point, then of each element beyond the first.
bool PalletPlugin::raise(double millimetres)
{
    int place = -1;
    ostrel::ModuleObject *const record = palletRecord(&place);
    if (countPointValueElements(record) == 0) {
        m_outcome = [] { return tr("Teach the first place first."); };
        return false;
    }
    const QStringList indexes = collectPointValueIndexes(record);
    for (const QString &index : indexes) {
        ostrel::ModuleObject *const element = record->child("value")->child(index);
        element->set(nullptr, heightField, element->getDouble(heightField, 0) + millimetres, true);
    }
    triggerPointHotUpdate("edit", place);
    bool told = true;
    for (const QString &index : indexes.mid(1))
        told = hotUpdatePersPointElement(record, index) && told;
    return saveAndPushPoint() && told;
}

bool PalletPlugin::removePlace()
{
    const int place = m_places->currentRow();
    if (place < 0) {
        m_outcome = [] { return tr("Select a place first."); };
        return false;
    }
    return zepletInterface()->removePointElement(
        palletPoint, m_places->item(place)->data(Qt::UserRole).toString());
}

// Where the robot waits, as axes: straight up.
bool PalletPlugin::makePark()
{
    InterfaceManager *const robot = zepletInterface();
    const QStringList names = robot->getPointNameList();
    const bool exists = std::any_of(names.begin(), names.end(), [=](const QString &name) {
        return robot->checkPointSame(name, parkPoint);
    });
    return (exists || robot->createPoint(parkPoint, true, false))
        && robot->setPointJointData(parkPoint, {0, 0, 0, 0, 90, 0, 0}, QString());
}

// All points, in a file of the plugin's own.
bool PalletPlugin::backUp()
{
    QString directory;
    GetPluginDataPath(directory, pluginName);
    const QString file = QDir(directory).absoluteFilePath("points.json");
    const bool written = QDir().mkpath(directory) && writeDataToJson(file, pointList(), "point");
    m_outcome = [=] {
        return (written ? tr("The points are in %1.") : tr("%1 can't be written.")).arg(file);
    };
    return written;
}

void PalletPlugin::refresh()
{
    InterfaceManager *const robot = zepletInterface();
    const int row = m_places->currentRow();
    const QVector<int> declared = robot->getPointDimensions(palletPoint);
    m_places->setToolTip(tr("Places declared in the program: %1").arg(declared.value(0)));
    m_places->clear();
    for (const QString &index : robot->getPointValueIndexList(palletPoint)) {
        const QJsonObject values = robot->getPointObjDataByName(palletPoint)["value"].toObject();
        QStringList texts;
        if (values[index].toObject().contains("pose")) {
            for (const double value : robot->getPointDataByName(palletPoint, index).mid(0, 3))
                texts.append(QString::number(value, 'f', 1));
        }
        auto *item = new QListWidgetItem(
            tr("%1:   %2").arg(index, texts.isEmpty() ? tr("not taught") : texts.join("   ")),
            m_places);
        item->setData(Qt::UserRole, index);
        item->setSizeHint({0, 53}); // a finger's width
    }
    m_places->setCurrentRow(row);
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new PalletPlugin(parent); });
    return true;
}();

#include "palletplugin.moc"
