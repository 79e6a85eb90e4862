#include "pagefixture.h"
#include "panelapplication.h"
#include "shownwords.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QRegularExpression>
#include <QScrollBar>
#include <algorithm>
#include <brisa/languagemanager.h>
#include <brisa/physicalbutton.h>
#include <brisa/settingmanager.h>
#include <kest/bmodule.h>
#include <kest/expandsidebar.h>
#include <kivra/navigation.h>
#include <nexo/nexo.h>
#include <ostrel/moduleobject.h>
#include <zeplet/interface/interfacemanager.h>

using brisa::LanguageManager;
using zeplet::zepletInterface;

namespace
{

const QStringList foreign {"de", "zh_CN"};

QString disk()
{
    static const QTemporaryDir directory;
    return directory.path();
}

simulator::Scenario cell()
{
    simulator::Scenario scenario;
    scenario.files = {disk(), 0};
    return scenario;
}

} // namespace

/** The panel in all its languages: each page changes while it is shown, and nothing is clipped.
 * With ZEPLET_PICTURES set to a directory, a picture of each is saved there. */
class TestLanguages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const QString &language : foreign) {
            m_english[language]
                = englishOf({"translations/zeplet", "examples/status/status"}, language);
            QVERIFY2(m_english[language].isValid()
                         && m_english[language].match("Motors").hasMatch(),
                     qPrintable(m_english[language].errorString()));
        }
        m_panel.reachDisk();
        QVERIFY(QFile::copy(ZEPLET_STATUS, m_panel.directory.filePath("status.so")));
        QVERIFY(m_panel.start());
        QTRY_VERIFY(nexo()->mobj()->getBool("connected", false));
        QCOMPARE(zepletInterface()->createProject("cell", "", true), 0);
        QVERIFY(zepletInterface()->createPoint("P1", false, true));
        QVERIFY(zepletInterface()->createPoint("P2", true, false));
        QVERIFY(zepletInterface()->addVarData("count", 3, true));
        QVERIFY(zepletInterface()->addVarData("ready", false, false));
        QVERIFY(zepletInterface()->addVarData("speed", 0.5, false));
        const QString project = m_panel.workspace() + "/SIM-0001/cell";
        QVERIFY(QDir(project).mkpath("program"));
        pluginfiles::write(project + "/program", "main.prog", "MoveL P1\n\nWait 1\n");
    }

    void init() { QVERIFY(LanguageManager::instance()->setLanguage("en")); }

    void pages_data()
    {
        QTest::addColumn<QString>("page");
        for (const char *group : {"kivra.page.panel.page", "kivra.page.robot.page.pack.page"}) {
            for (const QJsonValue &entry : m(group)->exportToJson(true).toArray()) {
                const QString page = entry["nav"].toString();
                QTest::newRow(qPrintable(page)) << page;
            }
        }
        QVERIFY(m(QStringLiteral("kivra.page.robot.page.pack.page"))->childCount() >= 6);
    }

    // All that can be seen changes, and comes back.
    void pages()
    {
        QFETCH(QString, page);
        QVERIFY(m_panel.show(page));
        const QString before = words().join('\n');
        for (const QString &language : foreign) {
            QVERIFY(LanguageManager::instance()->setLanguage(language));
            QTRY_COMPARE(english(language), QString());
            QVERIFY(m_panel.show(page));
            savePicture(page + '-' + language);
            QCOMPARE(faults(), QString());
        }
        QVERIFY(LanguageManager::instance()->setLanguage("en"));
        QTRY_COMPARE(words().join('\n'), before);
        QVERIFY(m_panel.show(page));
        QCOMPARE(faults(), QString());
    }

    void forms_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("row");
        QTest::addColumn<QString>("button");
        const QStringList forms[] {{"points", "", "newPoint"},
                                   {"points", "P1", "teachPoint"},
                                   {"points", "P2", "editPoint"},
                                   {"points", "P1", "addElement"},
                                   {"points", "P1", "deletePoint"},
                                   {"variables", "", "newVariable"},
                                   {"variables", "count", "changeVariable"},
                                   {"variables", "count", "deleteVariable"},
                                   {"projects", "", "newProject"},
                                   {"program", "", "newProgram"},
                                   {"projects", "cell", "removeProject"},
                                   {"signals", "", "simulateInputs"},
                                   {"program", "", "renameProgram"},
                                   {"program", "", "deleteProgram"},
                                   {"program", "", "insertLine"}};
        for (const QStringList &form : forms)
            QTest::newRow(qPrintable(form.join('-'))) << form[0] << form[1] << form[2];
    }

    void forms()
    {
        QFETCH(QString, page);
        QFETCH(QString, row);
        QFETCH(QString, button);
        for (const QString &language : foreign) {
            QVERIFY(LanguageManager::instance()->setLanguage(language));
            QVERIFY(m_panel.show("zeplet.page-" + page));
            QVERIFY(row.isEmpty() || m_panel.tap(page, row));
            QTRY_VERIFY(m_panel.click(button));
            QTRY_COMPARE(english(language), QString());
            QVERIFY(m_panel.show("zeplet.page-" + page));
            savePicture(button + '-' + language);
            QCOMPARE(faults(), QString());
            QVERIFY(m_panel.click("cancel"));
        }
    }

    void running()
    {
        for (const char *line : {"set power on", "set mode auto", "program start"})
            m_panel.simulator.control(line);
        QTRY_COMPARE(m("brisa.r.state")->getStr(""), QString("program"));
        inEachLanguage({"panel.home", "zeplet.page-run", "zeplet.page-points"});
        m("brisa.r.zeplet.filter.stop")->set(nullptr, true);
        QVERIFY(m_panel.click("stopProgram"));
        QVERIFY(m_panel.find<QWidget>("cancelWaiting"));
        inEachLanguage({"zeplet.page-run"});
        m("brisa.r.zeplet.filter.stop")->set(nullptr, false);
        QTRY_COMPARE(m("brisa.r.state")->getStr(""), QString("idle"));
    }

    // Beside the side bar no page is pushed out of sight, and with keys as well, which leaves the
    // least room, the panel stays as large as its screen, and the key that stops a move in sight.
    void besideASideBarAndKeys()
    {
        const QStringList pages {"page-points",  "page-program",   "page-projects", "page-run",
                                 "page-signals", "page-variables", "zeplet"};
        kest::BModule module;
        auto *const bar = m_panel.window().findChild<kest::ExpandSideBar *>();
        QVERIFY(bar->addPage(&module, "side", new QLabel("side")));
        bar->show();
        for (const bool withKeys : {false, true}) {
            for (const QString &language : foreign) {
                QVERIFY(LanguageManager::instance()->setLanguage(language));
                for (const QString &page : pages) {
                    QVERIFY(m_panel.show("zeplet." + page));
                    savePicture("narrow-" + page + '-' + language);
                    QCOMPARE(widgetchecks::faults(&m_panel.window()).join('\n'), QString());
                    QCOMPARE(m_panel.window().size(), QSize(1280, 800));
                    QVERIFY2((withKeys && page != "page-points") || !isScrolledSideways(),
                             qPrintable(page + language));
                }
            }
            qo::kivra::registerPhysicalButtons(&module, "keys", {{"A", {}, {}, {}}}, {}, {});
        }
        bar->hide();
    }

    void offline()
    {
        m_panel.simulator.control("fault controller_down");
        QTRY_VERIFY(!PageFixture::isConnected());
        QStringList all;
        for (const char *page : {"points", "projects", "run", "signals", "variables"})
            all += QStringLiteral("zeplet.page-") + page;
        inEachLanguage(all + QStringList {"panel.home"});
        m_panel.simulator.control("fault clear");
        QTRY_VERIFY(PageFixture::isConnected());
    }

    void chosenOnThePage()
    {
        QVERIFY(m_panel.show("zeplet.zeplet"));
        auto *const choice = m_panel.find<QComboBox>("language");
        QVERIFY(choice);
        QCOMPARE(choice->currentText(), QString("English"));
        QTest::keyClick(choice, Qt::Key_Down);
        QCOMPARE(LanguageManager::instance()->language(), QString("de"));
        QCOMPARE(choice->currentText(), QString("Deutsch"));
        QTRY_COMPARE(english("de"), QString());
        const auto *const settings = brisa::ManagerHelper::instance()->settingManager();
        QCOMPARE(settings->getStr("language", ""), QString("de"));
    }

    void translationsOfALaterLibrary()
    {
        QVERIFY(LanguageManager::instance()->setLanguage("de"));
        QCOMPARE(QCoreApplication::translate("navigation", "Frames"), QString("Frames"));
        QVERIFY(QLibrary(ZEPLET_FRAMES).load());
        LanguageManager::instance()->loadLibraries();
        QCOMPARE(QCoreApplication::translate("navigation", "Frames"),
                 QString("Koordinatensysteme"));
    }

    void languages()
    {
        QCOMPARE(LanguageManager::languages(), (QStringList {"en", "de", "zh_CN"}));
        QCOMPARE(LanguageManager::languageName("zh_CN"), QString("简体中文"));
        QVERIFY(LanguageManager::instance()->setLanguage("de"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no language \"tlh\".*English"));
        QVERIFY(!LanguageManager::instance()->setLanguage("tlh"));
        QCOMPARE(LanguageManager::instance()->language(), QString("en"));
        QCOMPARE(QCoreApplication::translate("navigation", "Points"), QString("Points"));
    }

    void cleanupTestCase() { QVERIFY(m_panel.session->finish()); }

private:
    // Times and numbers change by themselves.
    QStringList words() const
    {
        static const QRegularExpression letters(QStringLiteral("\\p{L}"));
        QStringList words;
        for (const ShownText &shown : shownTexts(&m_panel.window())) {
            if (shown.text.contains(letters))
                words += shown.text;
        }
        words.sort();
        return words;
    }

    void inEachLanguage(const QStringList &pages)
    {
        for (const QString &language : foreign) {
            QVERIFY(LanguageManager::instance()->setLanguage(language));
            for (const QString &page : pages) {
                QVERIFY(m_panel.show(page));
                savePicture(page + '-' + QTest::currentTestFunction() + '-' + language);
                QTRY_COMPARE(english(language), QString());
                QCOMPARE(faults(), QString());
            }
        }
    }

    static bool isScrolledSideways()
    {
        const auto areas = instantiatedCenterWidget()->findChildren<QScrollArea *>();
        return std::any_of(areas.begin(), areas.end(), [](const QScrollArea *area) {
            return area->isVisible() && area->horizontalScrollBar()->maximum() > 0;
        });
    }

    QString english(const QString &language) const
    {
        return words().filter(m_english.value(language)).join('\n');
    }

    QString faults() const
    {
        QStringList faults = widgetchecks::faults(&m_panel.window());
        for (const ShownText &shown : shownTexts(&m_panel.window())) {
            if (shown.needed > shown.given)
                faults += QStringLiteral("\"%1\" needs %2 and has %3: ")
                              .arg(shown.text)
                              .arg(shown.needed)
                              .arg(shown.given)
                    + widgetchecks::describe(shown.widget);
        }
        return faults.join('\n');
    }

    void savePicture(const QString &name) const
    {
        const QString pictures = qEnvironmentVariable("ZEPLET_PICTURES");
        if (!pictures.isEmpty())
            m_panel.window().grab().save(pictures + '/' + name + ".png");
    }

    QHash<QString, QRegularExpression> m_english;
    PageFixture m_panel {cell()};
};

int main(int argc, char *argv[])
{
    panel::PanelApplication application(argc, argv);
    TestLanguages test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_languages.moc"
