#pragma once

#include "mainwindow.h"
#include "offscreen.h"
#include "panelsession.h"
#include "pluginfiles.h"
#include "simulatorfixture.h"
#include "widgetchecks.h"

#include <QAbstractButton>
#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <brisa/managerhelper.h>
#include <brisa/tasknetworkmanager.h>
#include <brisa/thememanager.h>
#include <kest/centerwidget.h>

/** A panel with its own pages against a simulated controller, and what a test does with a page. */
class PageFixture
{
public:
    explicit PageFixture(const simulator::Scenario &scenario = {})
        : simulator(scenario)
    {
        ignoreOffscreenNoise();
        QApplication::setCursorFlashTime(0); // an entry stands still in a picture that takes long
        const QJsonObject settings {{"server.ip", "127.0.0.1"},
                                    {"server.port", QString::number(simulator.controllerPort())},
                                    {"server.hub_port", QString::number(simulator.hubPort())},
                                    {"workspace", workspace()}};
        pluginfiles::write(directory.path(), "settings.json", QJsonDocument(settings).toJson());
        panel::PanelOptions options;
        options.pluginDirectories = QStringList {directory.path()};
        options.runtimeDirectory = directory.filePath("run");
        options.settingsFile = directory.filePath("settings.json");
        session = std::make_unique<panel::PanelSession>(options);
    }

    /** Without the privileges that rsync's own port needs. */
    void reachDisk()
    {
        qputenv("RSYNC_CONNECT_PROG",
                "socat - TCP:127.0.0.1:" + QByteArray::number(simulator.rsyncPort()));
    }

    bool start()
    {
        QString error;
        return session->start(&error) && QTest::qWaitForWindowExposed(&window(), 60000)
            && QTest::qWaitFor([] { return isConnected(); }, 60000);
    }

    static bool isConnected()
    {
        return brisa::ManagerHelper::instance()->taskNetworkManager()->isConnect();
    }

    QString workspace() const { return directory.filePath("workspace"); }
    panel::MainWindow &window() const { return session->window(); }

    /** Shows a page, and waits until it is laid out and has taken up the theme: in its next frame.
     */
    bool show(const QString &page) const { return window().showPage(page) && !settled().isNull(); }

    /** The shown widget of that object name, or null. */
    template <typename Widget>
    Widget *find(const QString &name) const
    {
        for (Widget *const widget : window().findChildren<Widget *>(name)) {
            if (widget->isVisible())
                return widget;
        }
        return nullptr;
    }

    /** Clicks a button as a person would; false where it is not there or disabled. */
    bool click(const QString &name) const
    {
        auto *const button = find<QAbstractButton>(name);
        if (!button || !button->isEnabled())
            return false;
        QTest::mouseClick(button, Qt::LeftButton);
        return true;
    }

    /** Taps the cell of a table, in the row whose first cell has that text. */
    bool tap(const QString &table, const QString &row, int column = 0) const
    {
        auto *const view = find<QTableView>(table);
        const int at = view ? rowOf(view, row) : -1;
        if (at < 0)
            return false;
        const QModelIndex index = view->model()->index(at, column);
        view->scrollTo(index);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier,
                          view->visualRect(index).center());
        return true;
    }

    /** The text of a cell in the row whose first cell has that text; null where there is none. */
    QString cell(const QString &table, const QString &row, int column = 0) const
    {
        const auto *const view = find<QTableView>(table);
        const int at = view ? rowOf(view, row) : -1;
        return at < 0 ? QString() : view->model()->index(at, column).data().toString();
    }

    /** What the page says of the last action. */
    QString notice() const
    {
        const auto *const label = find<QLabel>("notice");
        return label ? label->text() : QString();
    }

    /** Waits until the picture stands still and the page has taken up the theme; saves it where
     * ZEPLET_PICTURES names a directory. What is wrong with it. */
    QString looks(const QString &theme) const
    {
        brisa::ThemeManager::instance()->setTheme(theme);
        const QImage picture = settled();
        const QString pictures = qEnvironmentVariable("ZEPLET_PICTURES");
        if (!pictures.isEmpty())
            picture.save(pictures + '/' + QTest::currentDataTag() + ".png");
        return picture.isNull() ? QString("never still")
                                : widgetchecks::faults(&window()).join('\n');
    }

    QTemporaryDir directory;
    SimulatorFixture simulator;
    std::unique_ptr<panel::PanelSession> session;

private:
    /** Null where it never stands still. */
    QImage settled() const
    {
        QImage last;
        int same = 0;
        const bool still = QTest::qWaitFor(
            [&] {
                const QImage now = window().grab().toImage();
                same = now == last ? same + 1 : 0;
                last = now;
                return same >= 3 && isStyled();
            },
            60000);
        return still ? last : QImage();
    }

    static bool isStyled()
    {
        const kest::CenterWidget *const centre = instantiatedCenterWidget();
        return centre->page(centre->currentKey())->styleSheet()
            == brisa::ThemeManager::instance()->styleSheet();
    }

    static int rowOf(const QTableView *view, const QString &text)
    {
        for (int row = 0; row < view->model()->rowCount(); ++row) {
            if (view->model()->index(row, 0).data() == text)
                return row;
        }
        return -1;
    }
};
