#include "pagefixture.h"
#include "panelapplication.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListView>
#include <QRegularExpression>
#include <brisa/basecontentwidget.h>
#include <brisa/rlmanager.h>
#include <cerrno>
#include <ostrel/moduleobject.h>
#include <stdexcept>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <zeplet/interface/interfacemanager.h>
#include <zeplet/rl/rlcontentbase.h>
#include <zeplet/rl/rlmanager.h>

#include <QFormLayout>

static mode_t s_unsynced = 0; // the kind of file whose sync fails

// In the place of the C library's.
extern "C" __attribute__((visibility("default"))) int fsync(int handle)
{
    struct stat state = {};
    if (s_unsynced != 0 && ::fstat(handle, &state) == 0 && (state.st_mode & S_IFMT) == s_unsynced) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_fsync, handle));
}

using zeplet::RLContentBase;
using zeplet::RLManager;
using zeplet::zepletInterface;

namespace
{

QString disk()
{
    static const QTemporaryDir directory;
    return directory.path();
}

simulator::Scenario cell()
{
    QString error;
    auto scenario = simulator::Scenario::fromText(R"({"robot": {"power": "on"}})", &error);
    if (!scenario)
        qFatal("%s", qPrintable(error));
    scenario->files = {disk(), 0};
    return *scenario;
}

/** "ArcStart(current, time)" with two fields, as a plugin would make it. */
class ArcStart : public RLContentBase
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

RLContentBase *failing()
{
    throw std::runtime_error("torch not found");
}

void registerInstructions()
{
    RLManager manager;
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

} // namespace

/** The page of programs as a person uses it, with well-made and with broken instructions. */
class TestProgramPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("RSYNC_CONNECT_PROG",
                QByteArray("socat - TCP:127.0.0.1:")
                    + QByteArray::number(m_panel.simulator.rsyncPort()));
        registerInstructions();
        QVERIFY(m_panel.start());
        QCOMPARE(zepletInterface()->createProject("cell", "", true), 0);
        QTRY_VERIFY(QDir(disk()).exists("hmi/cell/program"));
        QVERIFY(m_panel.show("zeplet.page-program"));
    }

    void init() { open("seam", program); }

    void linesAreRecognised_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("type");
        QTest::newRow("pattern") << "ArcStart(160, 0.5)"
                                 << "ArcStart";
        QTest::newRow("of an earlier type") << "  ArcStart(1, 2) // hot"
                                            << "ArcStart";
        QTest::newRow("of a later type") << "ArcStart(1"
                                         << "ArcAny";
        QTest::newRow("of a whole instruction") << "\tArcEnd // out"
                                                << "ArcEnd";
        QTest::newRow("without a type key") << "WaitDi(di_1, 0)"
                                            << "WaitDi";
        QTest::newRow("with carriage return") << "ArcEnd\r"
                                              << "ArcEnd";
        QTest::newRow("unknown") << "MoveL p1" << QString();
        QTest::newRow("comment") << " // ArcEnd" << QString();
        QTest::newRow("too long") << "ArcEnd" + QString(1000, ' ') << QString();
    }

    void linesAreRecognised()
    {
        QFETCH(QString, line);
        open("types", line + "\n");
        QTEST(lines()->index(0, 0).data(Qt::UserRole).toString(), "type");
    }

    void instructionsAreInserted_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("current"); // what is entered
        QTest::addColumn<QString>("sentence"); // of the dialog; null: it ends
        QTest::addColumn<QString>("added"); // behind the indented fourth line
        const QString no;
        QTest::newRow("widget") << "Welding"
                                << "ArcStart"
                                << "90" << no << "  ArcStart(90, 0.5)\n";
        QTest::newRow("incomplete") << "Welding"
                                    << "ArcStart"
                                    << ""
                                    << "can't be inserted yet" << no;
        QTest::newRow("ToString throws") << "Welding"
                                         << "ArcStart"
                                         << "666"
                                         << "\"no such current\"" << no;
        QTest::newRow("breaks in a line") << "Welding"
                                          << "ArcStart"
                                          << "1\x01"
                                          << "no text" << no;
        QTest::newRow("no content: skeleton") << "Welding"
                                              << "ArcEnd" << no << no << "  ArcEnd\n";
        QTest::newRow("no widget: default") << "Welding"
                                            << "ArcAny" << no << no << "  Arc(1)\n  Arc(2)\n";
        QTest::newRow("no widget, no default: skeleton")
            << "logic"
            << "WaitDi" << no << no << "  WaitDi(signal, value)\n";
        QTest::newRow("nothing at all") << "Others"
                                        << "Bare" << no << "neither a widget" << no;
        QTest::newRow("maker throws") << "faults"
                                      << "Thrower" << no << "\"torch not found\"" << no;
        QTest::newRow("empty function") << "faults"
                                        << "Empty" << no << "empty function" << no;
        QTest::newRow("null widget") << "faults"
                                     << "Null" << no << "gave no widget" << no;
    }

    void instructionsAreInserted()
    {
        QFETCH(QString, group);
        QFETCH(QString, type);
        QFETCH(QString, current);
        QFETCH(QString, sentence);
        QFETCH(QString, added);
        choose(3);
        QVERIFY(m_panel.click("insertLine"));
        QVERIFY(!m_panel.click("insert")); // nothing is chosen
        QVERIFY(m_panel.tap("instructionGroups", group));
        QVERIFY(m_panel.tap("instructionTypes", type));
        QVERIFY(m_panel.click("insert"));
        if (auto *const field = m_panel.find<QLineEdit>("current"))
            field->setText(current);
        if (m_panel.find<QWidget>("insertDialog") && m_panel.find<QWidget>("back"))
            QVERIFY(m_panel.click("insert"));
        QCOMPARE(m_panel.find<QWidget>("insertDialog") == nullptr, sentence.isNull());
        if (!sentence.isNull())
            QVERIFY2(told().contains(sentence), qPrintable(told()));
        QString expected = program;
        expected.insert(expected.indexOf("MoveL"), added);
        QCOMPARE(onPanel("seam"), expected.toUtf8());
        if (sentence.isNull())
            QCOMPARE(view()->currentIndex().row(), 3 + added.count('\n'));
    }

    void propertiesReplaceTheirLine_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("now"); // null: the dialog stays, or is not there
        QTest::addColumn<QString>("sentence");
        QTest::newRow("indentation and comment stay") << "\t ArcStart(1, 2)  // \"hot\""
                                                      << "\t ArcStart(77, 2)  // \"hot\""
                                                      << "";
        QTest::newRow("carriage return stays") << "ArcStart(1, 2)\r"
                                               << "ArcStart(77, 2)\r"
                                               << "";
        QTest::newRow("slashes in quotes are no comment") << "ArcStart(1, \"a//b\")"
                                                          << "ArcStart(77, \"a//b\")"
                                                          << "";
        QTest::newRow("nothing to enter") << "\tArcEnd // out"
                                          << "\tArcEnd // out"
                                          << "";
        QTest::newRow("refused") << "ArcStart(9, 9)" << QString() << "can't be applied yet";
        QTest::newRow("maker throws") << "Thrower" << QString() << "torch not found";
        QTest::newRow("empty function") << "Empty" << QString() << "empty function";
    }

    void propertiesReplaceTheirLine()
    {
        QFETCH(QString, line);
        QFETCH(QString, now);
        QFETCH(QString, sentence);
        open("properties", "// first\n" + line + "\n");
        choose(1);
        QVERIFY(m_panel.click("editProperties"));
        if (auto *const field = m_panel.find<QLineEdit>("current"))
            field->setText(now.isNull() ? "" : "77");
        m_panel.click("apply");
        QCOMPARE(m_panel.find<QWidget>("propertyDialog") == nullptr,
                 !now.isNull() || !line.startsWith("Arc"));
        const QString said = told() + m_panel.notice();
        QVERIFY2(said.contains(sentence), qPrintable(said));
        QCOMPARE(onPanel("properties"),
                 ("// first\n" + (now.isNull() ? line : now) + '\n').toUtf8());
    }

    void editsAreOnTheDiskAtOnceAndUndone()
    {
        choose(4);
        QVERIFY(m_panel.click("moveUp"));
        QVERIFY(onPanel("seam").contains("z10\n  ArcStart"));
        QCOMPARE(view()->currentIndex().row(), 3);
        QVERIFY(m_panel.click("deleteLine"));
        QVERIFY(!onPanel("seam").contains("MoveL"));
        QVERIFY(m_panel.click("editLine"));
        m_panel.find<QLineEdit>("lineText")->setText("ArcStart(5, \"über\")");
        QVERIFY(m_panel.click("accept"));
        QVERIFY(onPanel("seam").contains("\nArcStart(5, \"über\")\n"));
        for (int i = 0; i < 3; ++i)
            QVERIFY(m_panel.click("undo"));
        QCOMPARE(onPanel("seam"), program.toUtf8());
        QVERIFY(!m_panel.click("undo"));
    }

    void otherTextsKeepTheirLineEnds_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("moved"); // its first line down
        QTest::newRow("no end") << QByteArray("a\nb") << QByteArray("b\na\n");
        QTest::newRow("CRLF") << QByteArray("a\r\nb\r\n") << QByteArray("b\r\na\r\n");
        QTest::newRow("CRLF, no end") << QByteArray("a\r\nb") << QByteArray("b\r\na\r\n");
        QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf"
                                                       "a\nb\n")
                                         << QByteArray("b\na\n");
    }

    void otherTextsKeepTheirLineEnds()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, moved);
        write("ends", content);
        QVERIFY(reopen("ends"));
        choose(0);
        QVERIFY(m_panel.click("moveDown"));
        QCOMPARE(onPanel("ends"), moved);
        QVERIFY(m_panel.click("undo"));
        QCOMPARE(onPanel("ends"), content);
    }

    void whatTheDiskDidNotConfirmIsShownAsItIs()
    {
        choose(1);
        s_unsynced = S_IFDIR;
        QVERIFY(m_panel.click("deleteLine"));
        s_unsynced = 0;
        QVERIFY2(m_panel.notice().contains("did not confirm"), qPrintable(m_panel.notice()));
        QCOMPARE(lines()->rowCount(), 5);
        QVERIFY(m_panel.click("undo"));
        QCOMPARE(onPanel("seam"), program.toUtf8());
    }

    void whatChangedElsewhereIsNotOverwritten()
    {
        write("seam", "other\n");
        choose(2);
        QVERIFY(m_panel.click("deleteLine"));
        QVERIFY2(m_panel.notice().contains("changed elsewhere"), qPrintable(m_panel.notice()));
        QCOMPARE(onPanel("seam"), QByteArray("other\n"));
        QCOMPARE(lines()->rowCount(), 1);
        QVERIFY(m_panel.click("editLine"));
        open("another", "kept\n");
        m_panel.find<QLineEdit>("lineText")->setText("misplaced");
        QVERIFY(m_panel.click("accept"));
        QVERIFY(m_panel.notice().contains("nothing was changed"));
        QCOMPARE(onPanel("another"), QByteArray("kept\n"));
        QVERIFY(m_panel.click("newProgram"));
        m_panel.find<QLineEdit>("programName")->setText("late");
        write("late", "came meanwhile\n");
        QVERIFY(m_panel.click("accept"));
        QVERIFY2(m_panel.notice().contains("already"), qPrintable(m_panel.notice()));
        QCOMPARE(onPanel("late"), QByteArray("came meanwhile\n"));
    }

    void whatIsRefusedStaysEntered_data()
    {
        QTest::addColumn<QString>("opening");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("accepting");
        QTest::newRow("insert") << "insertLine"
                                << "current"
                                << "insert";
        QTest::newRow("properties") << "editProperties"
                                    << "current"
                                    << "apply";
        QTest::newRow("text") << "editLine"
                              << "lineText"
                              << "accept";
    }

    void whatIsRefusedStaysEntered()
    {
        QFETCH(QString, opening);
        QFETCH(QString, field);
        QFETCH(QString, accepting);
        choose(3);
        if (opening == "insertLine")
            enter("widget");
        else
            QVERIFY(m_panel.click(opening));
        m_panel.find<QLineEdit>(field)->setText("90");
        s_unsynced = S_IFREG;
        QVERIFY(m_panel.click(accepting));
        s_unsynced = 0;
        QVERIFY2(told().contains("could not be saved"), qPrintable(told()));
        QCOMPARE(onPanel("seam"), program.toUtf8());
        write("seam", program.toUtf8() + "Stop\n");
        QVERIFY(m_panel.click(accepting));
        QVERIFY2(told().contains("changed elsewhere"), qPrintable(told()));
        QCOMPARE(onPanel("seam"), program.toUtf8() + "Stop\n");
        QCOMPARE(m_panel.find<QLineEdit>(field)->text(), QString("90"));
        QVERIFY(m_panel.click(accepting));
        QVERIFY(!m_panel.find<QLineEdit>(field));
        QVERIFY(onPanel("seam").contains("90") && onPanel("seam").endsWith("Stop\n"));
    }

    void nobodySendsWhatNobodySaw()
    {
        write("seam", "other\n");
        QVERIFY(m_panel.click("sendProgram"));
        QTRY_VERIFY2(m_panel.notice().contains("was not sent"), qPrintable(m_panel.notice()));
        QVERIFY(onController("seam").isNull());
        QCOMPARE(lines()->rowCount(), 1);
    }

    void theControllerGetsItWhenItIsSent()
    {
        QCOMPARE(state(), QString("Not on the controller yet"));
        m_panel.simulator.control("files down");
        QVERIFY(m_panel.click("sendProgram"));
        QVERIFY(m_panel.find<QWidget>("busy")); // before the panel blocks
        QTRY_VERIFY2(m_panel.notice().contains("send it again"), qPrintable(m_panel.notice()));
        QCOMPARE(state(), QString("Not on the controller yet"));
        QVERIFY(onController("seam").isNull());
        m_panel.simulator.control("files up");
        QVERIFY(press("sendProgram"));
        QTRY_COMPARE(state(), QString("Same text on the controller"));
        QCOMPARE(onController("seam"), program.toUtf8());
        choose(0);
        QVERIFY(press("deleteLine"));
        QCOMPARE(state(), QString("Other text on the controller"));
        QVERIFY(m_panel.click("undo"));
        QCOMPARE(state(), QString("Same text on the controller"));
    }

    void renamingLosesNothing()
    {
        choose(1);
        QVERIFY(m_panel.click("deleteLine"));
        QVERIFY(m_panel.click("renameProgram"));
        QVERIFY(!m_panel.click("accept")); // it is its name already
        m_panel.find<QLineEdit>("programName")->setText("seam left");
        QVERIFY(m_panel.click("accept"));
        QCOMPARE(programs()->currentText(), QString("seam left"));
        QVERIFY(!QFile::exists(path("seam")));
        QCOMPARE(state(), QString("Not on the controller yet"));
        QVERIFY(m_panel.click("undo"));
        QCOMPARE(onPanel("seam left"), program.toUtf8());
    }

    void nothingIsSentWhileAProgramRuns()
    {
        m_panel.simulator.control("program start");
        QTRY_VERIFY(!m_panel.click("sendProgram"));
        choose(1);
        QVERIFY(m_panel.click("deleteLine")); // stays on the panel
        m_panel.simulator.control("program stop");
        QVERIFY(press("sendProgram"));
    }

    void namesThatLeadElsewhere_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"../up", "/tmp/x", "a/b", "..", ".hidden", "-rf", "a\tb",
                                 "$(reboot)", "a*", "C:\\x", "seam", "SEAM", ""})
            QTest::newRow(qPrintable(QString("'%1'").arg(name))) << name;
        QTest::newRow("too long") << QString(61, 'n');
    }

    void namesThatLeadElsewhere()
    {
        QFETCH(QString, name);
        QVERIFY(m_panel.click("newProgram"));
        m_panel.find<QLineEdit>("programName")->setText("x");
        m_panel.find<QLineEdit>("programName")->setText(name);
        QVERIFY(!m_panel.find<QLabel>("validation")->text().isEmpty());
        QVERIFY(!m_panel.click("accept"));
    }

    void programsAreMadeAndDeleted()
    {
        QVERIFY(m_panel.click("newProgram"));
        m_panel.find<QLineEdit>("programName")->setText(" Naht 2.über 批 ");
        QVERIFY(m_panel.click("accept"));
        QCOMPARE(programs()->currentText(), QString("Naht 2.über 批"));
        QCOMPARE(onPanel("Naht 2.über 批"), QByteArray(""));
        QVERIFY(m_panel.click("insertLine"));
        QVERIFY(m_panel.click("writeLine"));
        m_panel.find<QLineEdit>("lineText")->setText("first");
        QVERIFY(m_panel.click("accept"));
        QVERIFY(press("sendProgram"));
        QTRY_COMPARE(onController("Naht 2.über 批"), QByteArray("first\n"));
        QVERIFY(press("deleteProgram"));
        QVERIFY(m_panel.click("agree"));
        QVERIFY(!QFile::exists(path("Naht 2.über 批")));
        QCOMPARE(programs()->findText("Naht 2.über 批"), -1);
    }

    void filesThatAreNoProgramStayAsTheyAre_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("reason");
        QTest::newRow("Latin-1") << QByteArray("f\xfc"
                                               "r\n")
                                 << "UTF-8";
        QTest::newRow("binary") << QByteArray("a\0b\n", 4) << "UTF-8";
        QTest::newRow("too large") << QByteArray(1024 * 1024 + 1, 'x') << "1 MiB";
        QTest::newRow("link") << QByteArray() << "link";
    }

    void filesThatAreNoProgramStayAsTheyAre()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, reason);
        QFile::remove(path("odd"));
        if (content.isNull()) {
            QVERIFY(QFile::link(path("seam"), path("odd")));
        } else {
            QFile file(path("odd"));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        }
        QVERIFY(reopen("odd"));
        for (const char *key : {"insertLine", "editLine", "deleteLine", "undo", "sendProgram"})
            QVERIFY(!m_panel.click(key));
        QCOMPARE(lines()->rowCount(), 0);
        if (!content.isNull())
            QCOMPARE(onPanel("odd"), content);
        QFile::remove(path("odd"));
    }

    void anotherProjectHasItsOwnPrograms()
    {
        QCOMPARE(zepletInterface()->createProject("other", "", true), 0);
        QTRY_COMPARE(programs()->count(), 0);
        QVERIFY(!m_panel.click("insertLine"));
        QCOMPARE(zepletInterface()->changeProject("cell"), 0);
        QTRY_COMPARE(programs()->currentText(), QString("seam"));
    }

    // Last: a pattern that is left out stays so.
    void brokenPatternsEndInASentence_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("reason");
        QTest::newRow("not closed") << "^Slow("
                                    << "missing closing";
        QTest::newRow("takes for ever") << "^Slow((a+)+)+$"
                                        << "too long";
    }

    void brokenPatternsEndInASentence()
    {
        QFETCH(QString, pattern);
        QFETCH(QString, reason);
        auto &types = brisa::RlManager::getRlManager().typeKeys;
        types.removeAll("Slow");
        types.prepend("Slow");
        RLManager().createPattern("Slow", pattern);
        open("slow", "Slow" + QString(200, 'a') + "!\nArcEnd\n");
        QTRY_VERIFY2(kept().contains(reason), qPrintable(kept()));
        QCOMPARE(lines()->index(1, 0).data(Qt::UserRole).toString(), QString("ArcEnd"));
        RLManager().createPattern("Slow", "^Slow$");
        QVERIFY(reopen("slow"));
    }

    void looks_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("theme");
        for (const char *state : {"list", "insert", "widget", "sentence", "properties", "running",
                                  "broken", "offline", "none"}) {
            for (const char *theme : {"light", "dark"})
                QTest::addRow("program-%s-%s", state, theme) << state << theme;
        }
    }

    void looks()
    {
        QFETCH(QString, state);
        QFETCH(QString, theme);
        choose(3);
        enter(state);
        QCOMPARE(m_panel.looks(theme), QString());
        if (state == "broken")
            RLManager().createPattern("Slow", "^Slow$");
        if (state == "none")
            QCOMPARE(zepletInterface()->changeProject("cell"), 0);
    }

    void cleanup()
    {
        m_panel.click("cancel");
        m_panel.simulator.control("program stop");
        m_panel.simulator.control("fault clear");
        QTRY_VERIFY(PageFixture::isConnected());
        QTRY_VERIFY(!m_panel.find<QWidget>("busy"));
    }

    void cleanupTestCase() { QVERIFY(m_panel.session->finish()); }

private:
    QString path(const QString &name) const
    {
        return m_panel.workspace() + '/' + zepletInterface()->getCurProject() + "/program/" + name
            + ".prog";
    }

    static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QByteArray("") + file.readAll() : QByteArray();
    }

    QByteArray onPanel(const QString &name) const { return contentOf(path(name)); }
    QByteArray onController(const QString &name) const
    {
        return contentOf(disk() + "/hmi/cell/program/" + name + ".prog");
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

    bool press(const QString &name)
    {
        return QTest::qWaitFor([&] { return m_panel.click(name); });
    }

    void enter(const QString &state)
    {
        if (state == "insert" || state == "widget" || state == "sentence") {
            QVERIFY(m_panel.click("insertLine"));
            QVERIFY(m_panel.tap("instructionGroups", state == "sentence" ? "faults" : "Welding"));
            QVERIFY(m_panel.tap("instructionTypes", state == "sentence" ? "Thrower" : "ArcStart"));
        }
        if (state == "widget" || state == "sentence")
            QVERIFY(m_panel.click("insert"));
        if (state == "properties")
            QVERIFY(m_panel.click("editProperties"));
        if (state == "running") {
            m_panel.simulator.control("program start");
            QTRY_VERIFY(!m_panel.find<QAbstractButton>("sendProgram")->isEnabled());
        }
        if (state == "broken") {
            RLManager().createPattern("Slow", "^Slow(");
            QVERIFY(reopen("seam"));
        }
        if (state == "offline") {
            m_panel.simulator.control("fault controller_down");
            QTRY_VERIFY(!PageFixture::isConnected());
        }
        if (state == "none")
            m("tavik.project.cur_project")->set(nullptr, QString());
    }

    PageFixture m_panel {cell()};
};

int main(int argc, char *argv[])
{
    panel::PanelApplication application(argc, argv);
    TestProgramPage test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_programpage.moc"
