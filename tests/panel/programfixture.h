#pragma once

#include "pagefixture.h"

#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QLineEdit>
#include <QListView>
#include <QRegularExpression>
#include <brisa/rlmanager.h>
#include <stdexcept>
#include <zeplet/interface/interfacemanager.h>
#include <zeplet/rl/rlcontentbase.h>
#include <zeplet/rl/rlmanager.h>

/** The page of programs with well-made and with broken instructions, and a controller that has a
 *  disk. */
namespace programfixture
{

inline QString disk()
{
    static const QTemporaryDir directory;
    return directory.path();
}

inline simulator::Scenario cell()
{
    QString error;
    auto scenario = simulator::Scenario::fromText(R"({"robot": {"power": "on"}})", &error);
    if (!scenario)
        qFatal("%s", qPrintable(error));
    scenario->files = {disk(), 0};
    return *scenario;
}

/** "ArcStart(current, time)" with two fields, as a plugin would make it. */
class ArcStart : public zeplet::RLContentBase
{
public:
    ArcStart()
        : m_current(new QLineEdit(this))
        , m_time(new QLineEdit("0.5", this))
    {
        m_current->setObjectName("current");
        m_time->setObjectName("time");
        auto *const form = new QFormLayout(this);
        form->addRow("Current in A", m_current);
        form->addRow("Gas before in s", m_time);
    }

    void FillWith(const QString &text) override
    {
        const auto match = QRegularExpression("\\((.*), (.*)\\)").match(text);
        m_current->setText(match.captured(1));
        m_time->setText(match.captured(2));
    }
    QString ToString() override
    {
        if (m_current->text() == "666")
            throw std::runtime_error("no such current");
        return QString("ArcStart(%1, %2)").arg(m_current->text(), m_time->text());
    }
    bool CheckInsert() override { return !m_current->text().isEmpty(); }
    bool CheckReplace() override { return CheckInsert(); }

private:
    QLineEdit *m_current;
    QLineEdit *m_time;
};

inline zeplet::RLContentBase *failing()
{
    throw std::runtime_error("torch not found");
}

inline void registerInstructions()
{
    zeplet::RLManager manager;
    const auto make = [] { return new ArcStart; };
    const auto none = [] { return nullptr; };
    manager.createGroups("weld", "Welding");
    manager.createData("weld", "ArcStart", "Strikes the arc: current and gas", make, make);
    manager.createPattern("ArcStart", "^\\s*ArcStart\\([^()]*\\)\\s*(?://.*)?$");
    manager.createData("weld", "ArcEnd", "Ends the arc and fills the crater", none, none);
    manager.createTypeKey("ArcAny"); // fits what ArcStart fits, too
    manager.createPattern("ArcAny", "Arc");
    manager.createTypeToGroup("weld", QStringList {"ArcAny", "ArcStart"});
    manager.createInsDefault("ArcAny", "Arc(1)\nArc(2)");
    manager.createInsDescribe("ArcAny", "Two arcs, without a widget");
    manager.createSkeleton("WaitDi", "WaitDi(signal, value)"); // has a group, but no type key
    manager.createPattern("WaitDi", "^\\s*WaitDi\\(");
    manager.createTypeToGroup("logic", "WaitDi");
    manager.createInsDescribe("WaitDi", "Waits until an input has the value");
    manager.createTypeKey("Bare");
    manager.createData("faults", "Thrower", "", failing, failing);
    manager.createData("faults", "Empty", "", nullptr, nullptr);
    manager.createData("faults", "Null", "", none, none);
    brisa::RlManager::getRlManager().insertWidgets["Null"] = [](QWidget *) { return nullptr; };
}

const QString program = "// Seam 1, left side\n"
                        "\n"
                        "WaitDi(di_ready, 1)\n"
                        "  ArcStart(160, 0.5)  // warm up\n"
                        "MoveL p1, v100, z10\n"
                        "ArcEnd\n";

} // namespace programfixture

/** What the tests of that page share. */
class ProgramPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_panel.reachDisk();
        programfixture::registerInstructions();
        QVERIFY(m_panel.start());
        QCOMPARE(zeplet::zepletInterface()->createProject("cell", "", true), 0);
        QTRY_VERIFY(QDir(programfixture::disk()).exists("hmi/cell/program"));
        QVERIFY(m_panel.show("zeplet.page-program"));
    }

    void init() { open("seam", programfixture::program); }

    void cleanup()
    {
        m_panel.click("cancel");
        m_panel.simulator.control("program stop");
        m_panel.simulator.control("fault clear");
        QTRY_VERIFY(PageFixture::isConnected());
        QTRY_VERIFY(!m_panel.find<QWidget>("busy"));
    }

    void cleanupTestCase() { QVERIFY(m_panel.session->finish()); }

protected:
    QString path(const QString &name) const
    {
        return m_panel.workspace() + '/' + zeplet::zepletInterface()->getCurProject() + "/program/"
            + name + ".prog";
    }

    static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QByteArray("") + file.readAll() : QByteArray();
    }

    QByteArray onPanel(const QString &name) const { return contentOf(path(name)); }
    QByteArray onController(const QString &name) const
    {
        return contentOf(programfixture::disk() + "/hmi/cell/program/" + name + ".prog");
    }

    void write(const QString &name, const QByteArray &content) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QListView *view() const { return m_panel.find<QListView>("programLines"); }
    QAbstractItemModel *lines() const { return view()->model(); }
    QComboBox *programs() const { return m_panel.find<QComboBox>("programs"); }
    QString state() const { return m_panel.find<QWidget>("programState")->accessibleName(); }

    /** What a dialog of an instruction or a line says. */
    QString told() const
    {
        const auto *label = m_panel.find<QLabel>("instructionSentence");
        label = label ? label : m_panel.find<QLabel>("validation");
        return label ? label->text() : QString();
    }

    /** What the page says for as long as it is so, too. */
    QString kept() const
    {
        QStringList sentences;
        for (const QLabel *const label : m_panel.window().findChildren<QLabel *>("notice")) {
            if (label->isVisible())
                sentences.append(label->text());
        }
        return sentences.join(' ');
    }

    /** Reads the page anew, and chooses the program. */
    bool reopen(const QString &name)
    {
        if (!m_panel.window().showPage("panel.home") || !m_panel.show("zeplet.page-program"))
            return false;
        const int at = programs()->findText(name);
        programs()->setCurrentIndex(at);
        Q_EMIT programs()->activated(at);
        return at >= 0;
    }

    void open(const QString &name, const QString &text)
    {
        write(name, text.toUtf8());
        QVERIFY(reopen(name));
        QCOMPARE(lines()->rowCount(), text.count('\n'));
    }

    void choose(int row) { view()->setCurrentIndex(lines()->index(row, 0)); }

    /** Opens the dialog that inserts an instruction, and chooses one. */
    void chooseInstruction(const QString &group, const QString &type)
    {
        QVERIFY(m_panel.click("insertLine"));
        QVERIFY(!m_panel.click("insert")); // nothing is chosen
        QVERIFY(m_panel.tap("instructionGroups", group));
        QVERIFY(m_panel.tap("instructionTypes", type));
    }

    bool press(const QString &name)
    {
        return QTest::qWaitFor([&] { return m_panel.click(name); });
    }

    PageFixture m_panel {programfixture::cell()};
};
