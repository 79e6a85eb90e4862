#include "pagefixture.h"
#include "panelapplication.h"

#include <QDir>
#include <QLineEdit>
#include <ostrel/moduleobject.h>
#include <zeplet/interface/interfacemanager.h>

using zeplet::zepletInterface;

/** The panel's pages as a person uses them: what they show, refuse and ask. */
class TestPanelPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_panel.start()); }

    void init() { QVERIFY(m_panel.window().showPage("zeplet.page-projects")); }

    void newProject()
    {
        create("  Zelle 7 ", "Gehäuse schweißen");
        QTRY_COMPARE(m_panel.cell("projects", "Zelle 7"), QString("Zelle 7"));
        QCOMPARE(zepletInterface()->getCurProject(), QString("SIM-0001/Zelle 7"));
        QVERIFY(QDir(robotDirectory()).exists("Zelle 7/projectinfo.json"));
        QVERIFY(m_panel.notice().contains("Zelle 7"));
    }

    void invalidNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("empty") << " " << "needs a name";
        QTest::newRow("path") << "a/b" << "no path";
        QTest::newRow("up") << ".." << "no path";
        QTest::newRow("taken") << "here" << "already";
    }

    void invalidNames()
    {
        QFETCH(QString, name);
        QFETCH(QString, sentence);
        QCOMPARE(zepletInterface()->createProject("here", "", false), 0);
        QTRY_VERIFY(!m_panel.cell("projects", "here").isNull());
        QVERIFY(m_panel.click("newProject"));
        m_panel.find<QLineEdit>("projectName")->setText(name);
        QVERIFY(m_panel.find<QLabel>("validation")->text().contains(sentence));
        QVERIFY(!m_panel.click("accept"));
        QVERIFY(m_panel.click("cancel"));
        QCOMPARE(zepletInterface()->removeProject("here"), 0);
    }

    // Whatever the library refuses is told, with the project's name, and locks nothing.
    void refusals_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("create reserved") << "create" << "_temp" << "reserved";
        QTest::newRow("create behind our back") << "raced" << "raced" << "already";
        QTest::newRow("create without disk") << "create" << QString(300, 'x') << "disk";
        QTest::newRow("open what is gone") << "open" << "gone" << "no longer";
        QTest::newRow("remove what is gone") << "remove" << "gone" << "no longer";
    }

    void refusals()
    {
        QFETCH(QString, action);
        QFETCH(QString, name);
        QFETCH(QString, sentence);
        const QDir disk(robotDirectory());
        const bool known = action == "open" || action == "remove";
        if (known) {
            QCOMPARE(zepletInterface()->createProject(name, "", false), 0);
            QTRY_VERIFY(m_panel.tap("projects", name));
            QVERIFY(QDir(disk.filePath(name)).removeRecursively());
            QVERIFY(m_panel.click(action + "Project"));
            QVERIFY(action == "open" || m_panel.click("agree"));
        } else {
            openForm(name);
            QVERIFY(action != "raced" || disk.mkpath(name));
            QVERIFY(m_panel.click("accept"));
        }
        QTRY_VERIFY2(m_panel.notice().contains(sentence), qPrintable(m_panel.notice()));
        QVERIFY(m_panel.notice().contains(name));
        QTRY_VERIFY(!m_panel.find<QWidget>("busy"));
        QCOMPARE(m("brisa.msg._")->getInt(0), 0);
        QTRY_COMPARE(m_panel.cell("projects", name).isNull(), action != "raced");
    }

    void removalAsksFirst()
    {
        QCOMPARE(zepletInterface()->createProject("kept", "", false), 0);
        QTRY_VERIFY(m_panel.tap("projects", "kept"));
        QVERIFY(m_panel.click("removeProject"));
        QCOMPARE(m("brisa.msg._")->getInt(0), 1);
        QTest::keyClick(m_panel.window().focusWidget(), Qt::Key_Escape);
        QCOMPARE(m("brisa.msg._")->getInt(0), 0);
        QVERIFY(QDir(robotDirectory()).exists("kept"));
        QVERIFY(m_panel.click("removeProject"));
        QVERIFY(QDir(robotDirectory()).exists("kept"));
        QVERIFY(m_panel.click("agree"));
        QTRY_VERIFY(m_panel.cell("projects", "kept").isNull());
        QVERIFY(!QDir(robotDirectory()).exists("kept"));
    }

    void cleanupTestCase() { QVERIFY(m_panel.session->finish()); }

private:
    QString robotDirectory() const { return m_panel.workspace() + "/SIM-0001"; }

    void openForm(const QString &name)
    {
        QVERIFY(m_panel.click("newProject"));
        m_panel.find<QLineEdit>("projectName")->setText(name);
    }

    void create(const QString &name, const QString &description)
    {
        openForm(name);
        m_panel.find<QLineEdit>("projectDescription")->setText(description);
        QVERIFY(m_panel.click("accept"));
    }

    PageFixture m_panel;
};

int main(int argc, char *argv[])
{
    panel::PanelApplication application(argc, argv);
    TestPanelPages test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_panelpages.moc"
