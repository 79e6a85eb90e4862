#include <brisa/basecontentwidget.h>
#include <brisa/languagemanager.h>
#include <brisa/rlmanager.h>
#include <brisa/thememanager.h>
#include <zeplet-test/testpanel.h>
#include <zeplet/zeplet.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTest>

using brisa::RlManager;
using zeplet::test::comparePicture;
using zeplet::test::TestPanel;
using Form = std::unique_ptr<brisa::BaseContentWidget>;

class TestWelding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void linesComeBack_data();
    void linesComeBack();
    void wrongValuesAreNamed_data();
    void wrongValuesAreNamed();
    void chosenTargetIsKept();
    void speaksTheLanguageOfThePanel();
    void looksAsDesigned_data();
    void looksAsDesigned();
    void detaches();

private:
    Form makeForm(const QString &type) const
    {
        return Form(RlManager::getRlManager().propertyWidgets.value(type)(m_page));
    }

    TestPanel m_panel;
    QWidget *m_page = nullptr;
};

void TestWelding::initTestCase()
{
    QVERIFY2(m_panel.start(), qPrintable(m_panel.problem()));
    m_page = m_panel.page("welding");
    QVERIFY2(m_page, qPrintable(m_panel.problem()));
    for (const char *name : {"seam_1", "seam_2", "left, inner"})
        QVERIFY(zeplet::zepletInterface()->createPoint(name, false, false));
    QVERIFY(zeplet::zepletInterface()->createPoint("home", true, false));
    QCOMPARE(RlManager::getRlManager().groupTable.value("welding"),
             QStringList({"ArcStart", "ArcLinear", "ArcEnd", "GasTest"}));
}

void TestWelding::linesComeBack_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("expected"); // empty: the same
    const QString same;
    QTest::newRow("start") << "ArcStart"
                           << "ArcStart current=180, voltage=22.5, preflow=0.5" << same;
    QTest::newRow("indented, with a comment") << "ArcEnd"
                                              << "    ArcEnd crater=0.80 // slowly" << same;
    QTest::newRow("target") << "ArcLinear"
                            << "ArcLinear seam_2, speed=8, weave=0" << same;
    QTest::newRow("missing target") << "ArcLinear"
                                    << "ArcLinear gone, speed=8, weave=0" << same;
    QTest::newRow("out of range") << "ArcEnd"
                                  << "ArcEnd crater=-99" << same;
    QTest::newRow("no parameters") << "GasTest"
                                   << "GasTest" << same;
    QTest::newRow("other blanks") << "ArcLinear"
                                  << "ArcLinear  seam_1 ,speed = 8,weave=2"
                                  << "ArcLinear seam_1, speed=8, weave=2";
}

void TestWelding::linesComeBack()
{
    QFETCH(QString, type);
    QFETCH(QString, line);
    QFETCH(QString, expected);
    const QRegularExpression pattern(RlManager::getRlManager().patterns.value("c_" + type));
    QVERIFY(pattern.match(line).hasMatch());
    const Form form = makeForm(type);
    form->FillWith(line);
    QCOMPARE(form->ToString(), expected.isEmpty() ? line : expected);
    form->FillWith("MoveL seam_1"); // not one of its lines: it stays as it is
    QCOMPARE(form->ToString(), expected.isEmpty() ? line : expected);
}

void TestWelding::wrongValuesAreNamed_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("field"); // what a person changes to value; empty: nothing
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("problem"); // a part of it; empty: none
    const QString start = "ArcStart current=180, voltage=22.5, preflow=0.5";
    const QString seam = "ArcLinear seam_1, speed=8, weave=0";
    QTest::newRow("fine") << start << "current"
                          << "400"
                          << "";
    QTest::newRow("a comma") << start << "voltage"
                             << "22,5"
                             << "";
    QTest::newRow("too much") << start << "current"
                              << "400.5"
                              << "Current has to be from 20 to 400 A";
    QTest::newRow("in the line") << "ArcEnd crater=9"
                                 << ""
                                 << ""
                                 << "Crater fill has to be from 0 to 5 s";
    QTest::newRow("no number") << start << "voltage"
                               << "many"
                               << "Voltage has to be a number";
    QTest::newRow("empty") << start << "preflow"
                           << ""
                           << "Gas pre-flow has to be a number";
    QTest::newRow("seam") << seam << ""
                          << ""
                          << "";
    QTest::newRow("no such target") << "ArcLinear gone, speed=8, weave=0"
                                    << ""
                                    << ""
                                    << "no robot target \"gone\"";
    QTest::newRow("a joint target") << "ArcLinear home, speed=8, weave=0"
                                    << ""
                                    << ""
                                    << "no robot target \"home\"";
    QTest::newRow("a name with a comma") << seam << "target"
                                         << "left, inner"
                                         << "Rename the target";
}

void TestWelding::wrongValuesAreNamed()
{
    QFETCH(QString, line);
    QFETCH(QString, field);
    QFETCH(QString, value);
    QFETCH(QString, problem);
    const Form form = makeForm(line.section(' ', 0, 0));
    form->FillWith(line);
    if (auto *number = m_panel.find<QLineEdit>(form.get(), field))
        number->setText(value);
    if (auto *target = m_panel.find<QComboBox>(form.get(), field))
        target->setCurrentText(value);
    QCOMPARE(form->CheckInsert(), problem.isEmpty());
    QCOMPARE(form->CheckReplace(), problem.isEmpty());
    const QString shown = m_panel.find<QLabel>(form.get(), "problem")->text();
    QVERIFY2(problem.isEmpty() ? shown.isEmpty() : shown.contains(problem), qPrintable(shown));
}

// Whatever becomes of the list of points while the form is open.
void TestWelding::chosenTargetIsKept()
{
    const Form form = makeForm("ArcLinear");
    const QString line = "ArcLinear seam_2, speed=8, weave=0";
    form->FillWith(line);
    QVERIFY(zeplet::zepletInterface()->createPoint("seam_3", false, false));
    auto *target = m_panel.find<QComboBox>(form.get(), "target");
    QTRY_VERIFY(target->findText("seam_3") >= 0);
    QCOMPARE(form->ToString(), line);
    QVERIFY(zeplet::zepletInterface()->removePoint("seam_2"));
    QCOMPARE(form->ToString(), line);
    QVERIFY(!form->CheckReplace());
}

void TestWelding::speaksTheLanguageOfThePanel()
{
    const Form form = makeForm("ArcEnd");
    form->FillWith("ArcEnd crater=9");
    const auto restore = qScopeGuard([] { brisa::LanguageManager::instance()->setLanguage("en"); });
    brisa::LanguageManager::instance()->setLanguage("de");
    const auto description = [] { return RlManager::getRlManager().descriptions.value("ArcEnd"); };
    QTRY_COMPARE(description(), QString("Füllt den Endkrater und beendet dann den Lichtbogen."));
    QVERIFY(!form->CheckInsert());
    QCOMPARE(m_panel.find<QLabel>(form.get(), "problem")->text(),
             QString("Kraterfüllen: erlaubt sind 0 bis 5 s."));
}

void TestWelding::looksAsDesigned_data()
{
    QTest::addColumn<QString>("picture");
    QTest::newRow("light") << "arclinear.png";
    QTest::newRow("dark") << "arclinear-dark.png";
}

void TestWelding::looksAsDesigned()
{
    QFETCH(QString, picture);
    brisa::ThemeManager *const themes = brisa::ThemeManager::instance();
    const auto restore = qScopeGuard([=] { themes->setTheme(QString("light")); });
    QVERIFY(themes->setTheme(QString(QTest::currentDataTag())));
    m_panel.page("welding"); // in its new colours
    const Form form = makeForm("ArcLinear");
    form->FillWith("ArcLinear seam_1, speed=80, weave=0");
    form->resize(480, 300);
    form->show();
    QVERIFY(!form->CheckInsert());
    // On 64-bit Arm, 18 of its 144,000 pixels differ.
    const QString difference = comparePicture(form.get(), picture, 0.0002);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

void TestWelding::detaches()
{
    QCOMPARE(m_panel.detach("welding"), QStringList());
    m_page = nullptr;
    const Form form = makeForm("ArcEnd"); // the program editor lives on
    form->FillWith("ArcEnd crater=2");
    QVERIFY(form->CheckInsert());
}

QTEST_MAIN(TestWelding)
#include "tst_welding.moc"
