#include "shownwords.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <brisa/languagemanager.h>
#include <zeplet-test/testpanel.h>

using brisa::LanguageManager;
using zeplet::test::PanelSetup;
using zeplet::test::TestPanel;

/** Whatever the examples have to say, they say it again when the language changes. */
class TestExampleLanguages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(m_panel.start(), qPrintable(m_panel.problem()));
        QVERIFY(m_panel.injectFault("refusal", "hub.command")); // warnings are expected
    }

    void pages_data()
    {
        QTest::addColumn<QString>("example");
        for (const QString &library : PanelSetup().plugins) {
            const QString example = QFileInfo(library).baseName();
            QTest::newRow(qPrintable(example)) << example;
        }
    }

    // At first, and after each of the page's buttons.
    void pages()
    {
        QFETCH(QString, example);
        QWidget *const page = m_panel.page(example);
        QVERIFY2(page, qPrintable(m_panel.problem()));
        QCOMPARE(stayingEnglish(page, example), QString());
        for (QPushButton *const button : page->findChildren<QPushButton *>()) {
            const QString text = button->text();
            button->click();
            for (QMessageBox *const question : page->findChildren<QMessageBox *>())
                question->reject();
            const QString english = stayingEnglish(page, example);
            QVERIFY2(english.isEmpty(), qPrintable(text + ": " + english));
        }
        QCOMPARE(m_panel.detach(example), QStringList());
    }

private:
    // Of the example's texts; what comes from elsewhere is data.
    static QString stayingEnglish(const QWidget *page, const QString &example)
    {
        QStringList texts;
        for (const char *const language : {"de", "zh_CN"}) {
            const auto english = englishOf({"examples/" + example + '/' + example}, language);
            LanguageManager::instance()->setLanguage(language);
            QCoreApplication::processEvents(); // the page hears of it
            for (const ShownText &shown : shownTexts(page)) {
                if (english.match(shown.text).hasMatch())
                    texts += shown.text;
            }
        }
        LanguageManager::instance()->setLanguage("en");
        QCoreApplication::processEvents();
        return texts.join('\n');
    }

    TestPanel m_panel;
};

QTEST_MAIN(TestExampleLanguages)
#include "tst_examplelanguages.moc"
