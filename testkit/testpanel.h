#pragma once

#include <zeplet-test/comparepicture.h>
#include <zeplet-test/export.h>
#include <zeplet-test/panelsetup.h>
#include <zeplet/events/zepletevent.h>

#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <memory>

namespace zeplet
{
namespace test
{

/**
 * A panel in this process, with a simulated controller and its files, for the tests of a plugin.
 *
 * It loads the plugins as the panel does, its checks included, starts with an empty data store, and
 * keeps all files in a temporary directory, which is the current one while it lives. One at a time;
 * a test may make several, one after the other. Needs a QApplication, rsync and socat. GUI thread;
 * the simulator has a thread of its own, so that the panel may block on its requests.
 *
 * Timeouts are in milliseconds; no wait takes longer. Events are processed meanwhile. What returns
 * false, null or undefined leaves its reason in problem().
 */
class ZEPLET_TEST_EXPORT TestPanel
{
public:
    /** Starts nothing yet. */
    explicit TestPanel(const PanelSetup &setup = {});
    /** Ends the panel as a person would, then takes back what plugins left in this process. */
    ~TestPanel();
    Q_DISABLE_COPY(TestPanel)

    /** Once. True when every plugin runs, the controller and its hub are connected, the project is
     *  open on both sides and the panel has read what the controller holds: about half a second. A
     *  plugin that was refused or failed gives its sentence. */
    bool start();
    /** Why the last call that failed did so, in a sentence. */
    QString problem() const;

    /** The panel's window; it belongs to the panel. Null before start(). */
    QWidget *window() const;
    /** Shows a plugin's page and waits until it is laid out and styled. Null: no such page. */
    QWidget *page(const QString &plugin);
    /** Clicks the visible, enabled button of that text or object name in a widget, as a finger
     *  would: in the middle, scrolled to. */
    bool click(QWidget *in, const QString &text);
    /** The widget of that object name in another one; null where there is none. */
    template <class T>
    T *find(QWidget *in, const QString &objectName) const
    {
        return in ? in->findChild<T *>(objectName) : nullptr;
    }

    /** Waits for an event of the bus; returns at once where it came after start() or the last
     *  clearEvents(). event: the last one of that type. */
    bool waitForEvent(zeplet::ZepletEventType type, zeplet::ZepletEvent *event = nullptr,
                      int timeout = 5000);
    /** Forgets the events, requests and banners that came so far. */
    void clearEvents();

    /** Waits for a request at the simulated controller or its hub, by its full name
     *  ("rl_program.start", "hub.set") or the hub's key; returns at once where it came since the
     *  panel's start or the last clearEvents(). arguments: those of the last one. */
    bool expectRequest(const QString &command, QJsonValue *arguments = nullptr, int timeout = 5000);
    /** How often a request came in that time. */
    int requests(const QString &command) const;

    /** Waits for a message in the panel's banner; returns at once where it came in that time. level
     *  is "info", "warning" or "error", part a part of its text. */
    bool expectBanner(const QString &level, const QString &part, int timeout = 5000);
    /** The messages of that time, as "level: text". */
    QStringList banners() const;

    /** Carries out a line of the simulator's console ("set power off", "signal set di_1 true") and
     *  returns its result; undefined, with the reason in problem, where it is refused. */
    QJsonValue control(const QString &line, QString *problem = nullptr);
    /** Makes requests fail from now on, by the fault's name on the simulator's console
     *  ("no_answer", "refusal"...). command: the one it meets; empty: every command. more: "times"
     *  (how many requests; 0: until cleared), "ms" (delay or duration), "answer" (a wrong one).
     * While faults are about, warnings of the panel's own log do not fail the test. */
    bool injectFault(const QString &fault, const QString &command, const QJsonObject &more = {});
    /** Ends all faults. */
    void clearFaults();

    /** The path of a file in the open project's directory on the panel; empty where none is open.
     */
    QString panelFile(const QString &name) const;
    /** The same in the project's directory on the controller. */
    QString controllerFile(const QString &name) const;

    /** Detaches the plugin and destroys its module as the panel does in the end. What it left
     *  behind, a sentence each; empty: nothing. */
    QStringList detach(const QString &plugin);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace test
} // namespace zeplet
