#include "offscreen.h"

#include <brisa/basesettingpage.h>
#include <brisa/elidedlabel.h>
#include <brisa/glyph.h>
#include <brisa/thememanager.h>

#include <QApplication>
#include <QHelpEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QtTest>
#include <cmath>

using namespace brisa;

namespace
{
double luminance(const QColor &colour)
{
    const auto linear
        = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

/** Contrast ratio of the Web Content Accessibility Guidelines 2: 1 to 21. */
double contrast(const QColor &a, const QColor &b)
{
    const double la = luminance(a) + 0.05;
    const double lb = luminance(b) + 0.05;
    return la > lb ? la / lb : lb / la;
}

} // namespace

/** As the pointer does when it rests on the widget. */
void askForToolTip(QWidget *widget)
{
    QHelpEvent event(QEvent::ToolTip, QPoint(), QPoint());
    QApplication::sendEvent(widget, &event);
}

class TestPageLooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ignoreOffscreenNoise(); }

    void cleanup() { ThemeManager::instance()->setTheme(Theme::Light); }

    void textIsReadable()
    {
        for (const char *theme : {"light", "dark"}) {
            QVERIFY(ThemeManager::instance()->setTheme(QString(theme)));
            const ThemeColours &c = ThemeManager::instance()->colours();
            QVector<std::pair<QColor, QColor>> pairs {
                {c.onAccent, c.accent}, {c.onAccent, c.error}, {c.accent, c.accentSoft}};
            for (const QColor &ground : {c.window, c.surface, c.raised}) {
                for (const QColor &ink : {c.text, c.mutedText, c.accent, c.ok, c.warning, c.error})
                    pairs.append({ink, ground});
            }
            for (const QColor &ground : {c.okSoft, c.warningSoft, c.errorSoft, c.accentSoft})
                pairs.append({c.text, ground});
            for (const auto &[ink, ground] : pairs)
                QVERIFY2(contrast(ink, ground) >= 4.5, qPrintable(ink.name() + ground.name()));
        }
    }

    void refusesAnUnknownTheme()
    {
        QSignalSpy changes(ThemeManager::instance(), &ThemeManager::themeChanged);
        QVERIFY(!ThemeManager::instance()->setTheme("pink"));
        QVERIFY(ThemeManager::instance()->setTheme("light"));
        QCOMPARE(changes.size(), 0);
    }

    void styleSheetNamesNoUnknownColour()
    {
        const QString sheet = ThemeManager::instance()->styleSheet();
        QVERIFY(!sheet.contains('@'));
        QVERIFY(!sheet.contains("#000000"));
    }

    void pageTakesTheGlobalSheetOnItsRenderOnly()
    {
        BaseSettingPage page("zeplet", "demo", nullptr, nullptr);
        QCOMPARE(page.wgt()->styleSheet(), QString());
        page.startRender();
        QCOMPARE(page.wgt()->styleSheet(), QString()); // hidden
        const QString light = ThemeManager::instance()->styleSheet();
        page.wgt()->show();
        QCOMPARE(page.wgt()->styleSheet(), light);
        ThemeManager::instance()->setTheme(Theme::Dark);
        QCOMPARE(page.wgt()->styleSheet(), light);
        page.startRender();
        QCOMPARE(page.wgt()->styleSheet(), ThemeManager::instance()->styleSheet());
        QVERIFY(page.wgt()->styleSheet() != light);
    }

    void pageScrollsWhatIsLargerThanItself()
    {
        QWidget parent;
        BaseSettingPage page("zeplet", "demo", &parent, nullptr);
        QWidget *const content = page.contentWidget();
        content->setMinimumSize(300, 3000);
        page.wgt()->resize(400, 400);
        for (int times = 0; times < 2; ++times) {
            parent.show();
            QCOMPARE(page.contentWidget(), content);
            QVERIFY(content->isVisible());
            QCOMPARE(content->height(), 3000);
            QCOMPARE(page.wgt()->findChildren<QScrollArea *>().size(), 1);
            QCOMPARE(page.wgt()->height(), 400);
            parent.hide();
        }
    }

    void pageOwnsItsWidgetUnlessItsParentDeletedIt()
    {
        QPointer<QWidget> widget;
        {
            QObject module;
            widget = (new BaseSettingPage("zeplet", "demo", nullptr, &module))->wgt();
        }
        QVERIFY(!widget);
        QObject module;
        auto parent = std::make_unique<QWidget>();
        BaseSettingPage page("zeplet", "demo", parent.get(), &module);
        parent.reset();
        page.startRender();
        QCOMPARE(page.wgt(), nullptr);
        QCOMPARE(page.contentWidget(), nullptr);
    }

    void buttonsAreLargeEnoughForAFinger()
    {
        ThemeManager::instance()->applyToApplication();
        QPushButton button("OK");
        button.setStyleSheet(ThemeManager::instance()->styleSheet());
        button.ensurePolished();
        QVERIFY(button.sizeHint().height() >= 53);
    }

    void longTextIsElidedWithAToolTip()
    {
        const QString text = QString("<b>long</b>  &\n").repeated(40) + "end";
        ElidedLabel label(text);
        label.resize(200, 30);
        label.show();
        QVERIFY(label.isElided());
        askForToolTip(&label);
        QVERIFY(Qt::mightBeRichText(label.toolTip()));
        QCOMPARE(QTextDocumentFragment::fromHtml(label.toolTip()).toPlainText(), text);
        label.setText("short");
        QVERIFY(!label.isElided());
        askForToolTip(&label);
        QCOMPARE(label.toolTip(), QString());
    }

    void everyGlyphDrawsSomething()
    {
        for (int glyph = 0; glyph <= static_cast<int>(Glyph::Arm); ++glyph) {
            const QImage image = glyphPixmap(static_cast<Glyph>(glyph), Qt::black).toImage();
            QImage blank(image.size(), image.format());
            blank.fill(Qt::transparent);
            QVERIFY2(image != blank, qPrintable(QString::number(glyph)));
        }
    }
};

QTEST_MAIN(TestPageLooks)
#include "tst_pagelooks.moc"
