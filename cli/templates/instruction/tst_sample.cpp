#include <brisa/basecontentwidget.h>
#include <brisa/rlmanager.h>
#include <zeplet-test/testpanel.h>

#include <QLabel>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTest>
#include <memory>

using zeplet::test::TestPanel;

/** The plugin in a panel with a simulated robot. */
class SampleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void instructionIsEdited()
    {
        TestPanel panel;
        QVERIFY2(panel.start(), qPrintable(panel.problem()));
        const brisa::RlManager &editor = brisa::RlManager::getRlManager();
        const QRegularExpression line(editor.patterns.value("c_Sample"));
        QVERIFY(line.match("  Sample 3 // a comment").hasMatch());
        QVERIFY(!line.match("Sample many").hasMatch());

        const auto make = editor.propertyWidgets.value("Sample");
        QVERIFY(make);
        const std::unique_ptr<brisa::BaseContentWidget> widget(make(nullptr));
        widget->FillWith("Sample 3");
        QCOMPARE(panel.find<QSpinBox>(widget.get(), "times")->value(), 3);
        panel.find<QSpinBox>(widget.get(), "times")->setValue(4);
        QCOMPARE(widget->ToString(), QString("Sample 4"));
        QVERIFY(widget->CheckReplace());
    }

    void pageShowsInstruction()
    {
        TestPanel panel;
        QVERIFY2(panel.start(), qPrintable(panel.problem()));
        QWidget *const page = panel.page("sample");
        QVERIFY2(page, qPrintable(panel.problem()));
        panel.find<QSpinBox>(page, "times")->setValue(7);
        QCOMPARE(panel.find<QLabel>(page, "line")->text(), QString("Sample 7"));
        QCOMPARE(panel.detach("sample"), QStringList());
    }
};

QTEST_MAIN(SampleTest)
#include "tst_sample.moc"
