#include "panelapplication.h"
#include "programfixture.h"

#include <cerrno>
#include <ostrel/moduleobject.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

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

using programfixture::program;
using zeplet::zepletInterface;

/** The page of programs as a person uses it: its files, on the disk and on the controller. */
class TestProgramPage : public ProgramPageTest
{
    Q_OBJECT

private Q_SLOTS:
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
            chooseInstruction("Welding", "ArcStart");
        QVERIFY(m_panel.click(opening == "insertLine" ? "insert" : opening));
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

    void looks_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("theme");
        for (const char *state : {"list", "running", "offline", "none"}) {
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
        if (state == "none")
            QCOMPARE(zepletInterface()->changeProject("cell"), 0);
    }

private:
    void enter(const QString &state)
    {
        if (state == "running") {
            m_panel.simulator.control("program start");
            QTRY_VERIFY(!m_panel.find<QAbstractButton>("sendProgram")->isEnabled());
        }
        if (state == "offline") {
            m_panel.simulator.control("fault controller_down");
            QTRY_VERIFY(!PageFixture::isConnected());
        }
        if (state == "none")
            m("tavik.project.cur_project")->set(nullptr, QString());
    }
};

int main(int argc, char *argv[])
{
    panel::PanelApplication application(argc, argv);
    TestProgramPage test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_programpage.moc"
