#include "panelapplication.h"
#include "programfixture.h"

using programfixture::program;
using zeplet::RLManager;

/** The instructions of plugins on the page of programs: recognised, inserted and edited. */
class TestProgramInstructions : public ProgramPageTest
{
    Q_OBJECT

private Q_SLOTS:
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
        chooseInstruction(group, type);
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
        for (const char *state : {"insert", "widget", "sentence", "properties", "broken"}) {
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
    }

private:
    void enter(const QString &state)
    {
        if (state == "sentence")
            chooseInstruction("faults", "Thrower");
        else if (state == "insert" || state == "widget")
            chooseInstruction("Welding", "ArcStart");
        if (state == "widget" || state == "sentence")
            QVERIFY(m_panel.click("insert"));
        if (state == "properties")
            QVERIFY(m_panel.click("editProperties"));
        if (state == "broken") {
            RLManager().createPattern("Slow", "^Slow(");
            QVERIFY(reopen("seam"));
        }
    }
};

int main(int argc, char *argv[])
{
    panel::PanelApplication application(argc, argv);
    TestProgramInstructions test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_programinstructions.moc"
