#include "messagecapture.h"
#include "offscreen.h"
#include "testcolumns.h"

#include <brisa/basecontentwidget.h>
#include <brisa/rlmanager.h>
#include <zeplet/rl/rlbasewidget.h>
#include <zeplet/rl/rlcontentbase.h>
#include <zeplet/rl/rlmanager.h>

#include <QHBoxLayout>
#include <QPointer>
#include <QRegularExpression>
#include <QTest>

using brisa::BaseContentWidget;
using brisa::RlManager;
using zeplet::RLBaseWidget;
using zeplet::RLContentBase;
using zeplet::RLManager;

namespace
{

struct Content : RLContentBase {
    void FillWith(const QString &text) override { filled = text; }
    QString ToString() override { return filled.toUpper(); }
    bool CheckInsert() override { return insert; }
    bool CheckReplace() override { return !insert; }

    QString filled;
    bool insert = true;
};

RlManager &record()
{
    return RlManager::getRlManager();
}

} // namespace

class TestRlManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ignoreOffscreenNoise(); }

    void contentAnswersThroughTheHostsWidget()
    {
        QWidget parent;
        auto *content = new Content;
        const auto widget = std::make_unique<RLBaseWidget>(content, &parent);
        QCOMPARE(widget->parentWidget(), &parent);
        QCOMPARE(content->parentWidget(), widget.get());
        QCOMPARE(qobject_cast<QHBoxLayout *>(widget->layout())->itemAt(0)->widget(), content);
        BaseContentWidget *host = widget.get();
        MessageCapture messages;
        host->FillWith("movex 12");
        QCOMPARE(host->ToString(), QString("MOVEX 12"));
        QCOMPARE(messages.take(), QStringList {"<zeplet> RLBaseWidget::ToString()"});
        QVERIFY(host->CheckInsert() && !host->CheckReplace());
        content->insert = false;
        QVERIFY(!host->CheckInsert() && host->CheckReplace());
        QVERIFY(host->ToJsonValue().isNull() && host->GetLabel().isEmpty());
    }

    void withoutContentAnythingGoes()
    {
        RLBaseWidget bare(nullptr, nullptr);
        RLBaseWidget left(new Content, nullptr);
        delete left.layout()->itemAt(0)->widget();
        for (RLBaseWidget *widget : {&bare, &left}) {
            widget->FillWith("x");
            QCOMPARE(widget->ToString(), QString());
            QVERIFY(widget->CheckInsert() && widget->CheckReplace());
        }
        QVERIFY(!bare.layout());
    }

    void contentThatOverridesNothingMayNotBeInserted()
    {
        RLBaseWidget widget(new RLContentBase, nullptr);
        QVERIFY(!widget.CheckInsert() && !widget.CheckReplace());
        QCOMPARE(widget.ToString(), QString());
    }

    void oneCallEntersAWholeInstruction()
    {
        RLManager().createData(
            "weld", "MoveX", "moves", [] { return new Content; }, [] { return nullptr; });
        QCOMPARE(record().typeKeys, QStringList {"MoveX"});
        QCOMPARE(record().skeletons, (QHash<QString, QString> {{"s_MoveX", "MoveX"}}));
        QCOMPARE(record().patterns.keys(), QStringList {"c_MoveX"});
        QCOMPARE(record().descriptions, (QHash<QString, QString> {{"MoveX", "moves"}}));
        QCOMPARE(record().defaults, (QHash<QString, QString> {{"MoveX", ""}}));
        QCOMPARE(record().groupTable, (QHash<QString, QStringList> {{"weld", {"MoveX"}}}));
        QVERIFY(record().groups.isEmpty());
        QWidget editor;
        const std::unique_ptr<BaseContentWidget> insert(record().insertWidgets["MoveX"](&editor));
        const std::unique_ptr<BaseContentWidget> again(record().insertWidgets["MoveX"](&editor));
        const std::unique_ptr<BaseContentWidget> bare(record().propertyWidgets["MoveX"](&editor));
        QVERIFY(insert != again && insert->findChild<QWidget *>());
        QCOMPARE(insert->parentWidget(), &editor);
        QVERIFY(!bare->findChild<QWidget *>() && bare->CheckInsert());
    }

    void itsPatternFitsTheWordAlone_data()
    {
        const auto row = testcolumns<QString, bool>("line", "fits");
        row("alone", "MoveX", true);
        row("blanks", " \tMoveX  ", true);
        row("comment", "MoveX // to the seam", true);
        row("comment at once", "MoveX//", true);
        row("argument", "MoveX p1", false);
        row("one slash", "MoveX / ", false);
        row("longer word", "MoveXY", false);
        row("other case", "movex", false);
        row("prefix", "a MoveX", false);
    }
    void itsPatternFitsTheWordAlone()
    {
        QFETCH(QString, line);
        RLManager().createData("g", "MoveX", "", nullptr, nullptr);
        const QString pattern = record().patterns["c_MoveX"];
        QCOMPARE(pattern, QString("^\\s*MoveX\\s*(?://.*)?$"));
        QTEST(QRegularExpression(pattern).match(line).hasMatch(), "fits");
    }

    void listsKeepDuplicatesAndHashesTheLast()
    {
        RLManager first;
        RLManager second;
        const auto types = record().typeKeys.count("Twice");
        for (const char *text : {"old", "new"}) {
            first.createData("twice", "Twice", text, nullptr, nullptr);
            second.createGroups("twice", text);
            second.createInsDefault("Twice", text);
            second.createSkeleton("Twice", text);
            second.createPattern("Twice", text);
        }
        first.createTypeToGroup("twice", QStringList {"A", "A"});
        first.createTypeKey("Twice");
        QCOMPARE(record().typeKeys.count("Twice"), types + 3);
        QCOMPARE(record().groupTable["twice"], (QStringList {"Twice", "Twice", "A", "A"}));
        QCOMPARE(record().groups,
                 (QList<QPair<QString, QString>> {{"twice", "old"}, {"twice", "new"}}));
        for (const auto &text : {record().descriptions["Twice"], record().defaults["Twice"],
                                 record().skeletons["s_Twice"], record().patterns["c_Twice"]})
            QCOMPARE(text, QString("new"));
    }

    void anEmptyFunctionThrowsWhenTheEditorCallsIt()
    {
        RLManager().createInsertWidget("Empty", nullptr);
        RLManager().createPropertyWidget("Empty", RLManager::MakeContent());
        QVERIFY_EXCEPTION_THROWN(record().insertWidgets["Empty"](nullptr), std::bad_function_call);
        QVERIFY_EXCEPTION_THROWN(record().propertyWidgets["Empty"](nullptr),
                                 std::bad_function_call);
    }
};

QTEST_MAIN(TestRlManager)
#include "tst_rlmanager.moc"
