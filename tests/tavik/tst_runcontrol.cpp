#include "robotpeer.h"

using ostrel::ModuleObject;

/** Start and stop, for the operator and for plugins, and hot updates of points. */
class TestRunControl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_peer = std::make_unique<RobotPeer>();
        m_peer->setUp(true);
        QTRY_COMPARE(m_peer->controller.received("project.overview.get"), 1);
        m_states.clear();
        connect(m("brisa.r.zeplet.state"), &ModuleObject::changed, m_peer->data.get(),
                [this](const QVariant &state) { m_states.append(state.toString()); });
    }

    void cleanup() { m_peer.reset(); }

    /** Words: "filter" turns both filters on, "unfilter" off; "running", "idle" are the
     * controller's news; "run", "stopped" are plugins' answers; "down" is the loss of the link;
     * others an operator's. */
    void transitions()
    {
        const struct {
            const char *words, *requests, *waiting, *told;
        } rows[] = {
            {"start", "start", "", ""},
            {"stop", "stop", "", ""},
            {"run", "start", "", ""},
            {"stopped", "stop", "", ""},
            {"running start", "", "", "running already"},
            {"down start", "", "", "can't be started: there is no link"},
            {"down stop", "", "", "emergency stop"},
            {"down run", "", "", "no link"},
            {"filter start", "", "run", ""},
            {"filter start start", "", "run", ""},
            {"filter start run", "start", "", ""},
            {"filter start cancel", "", "", ""},
            {"filter start cancel run", "", "", "had been given up"},
            {"filter start cancel run run", "start", "", "had been given up"},
            {"filter start cancel start run", "start", "", ""},
            {"filter start stop", "", "", ""},
            {"filter start stop run", "", "", "had been given up"},
            {"filter start stopped", "", "", "did not let the program start"},
            {"filter start running", "", "", ""},
            {"filter start unfilter", "", "", "no longer answers"},
            {"filter start cancel unfilter run", "start", "", ""},
            {"filter running stop unfilter", "stop", "", ""},
            {"filter start down", "", "", "the start was given up"},
            {"filter start down up run", "", "", "had been given up"},
            {"filter running stop", "", "stop", ""},
            {"filter running stop stopped", "stop", "", ""},
            {"filter running stop stop", "stop", "", ""},
            {"filter running stop cancel", "", "", "runs on"},
            {"filter running stop idle", "", "", ""},
            {"filter running stop start", "", "stop", "while a stop waits"},
            {"filter running stop run", "", "stop", "it was not started"},
            {"filter running stop down", "", "", "may run on"},
            {"filter run", "start", "", ""},
            {"dance", "", "", ""},
        };
        for (const auto &[words, requests, waiting, told] : rows) {
            cleanup();
            init();
            if (QByteArray(words) == "dance")
                m_peer->announce("no wish of an operator: dance");
            for (const QString &word : QString(words).split(' '))
                play(word);
            const QString sentences = m_peer->told();
            const QString arrived = m_peer->manager()->isConnected() ? sent() : QString();
            QVERIFY2(arrived == requests, qPrintable(words + (": " + arrived)));
            QVERIFY2(m("brisa.r.zeplet.waiting")->getStr("?") == waiting, words);
            QVERIFY2(QByteArray(told).isEmpty() ? sentences.isEmpty() : sentences.contains(told),
                     qPrintable(words + (": " + sentences)));
            QCOMPARE(m("brisa.r.operator")->getStr("?"), QString());
        }
    }

    void pluginsAreAskedFirst()
    {
        play("filter");
        play("start");
        play("cancel");
        play("running");
        play("stop");
        QCOMPARE(m_states, QStringList({"run_before", "", "stop_before"}));
    }

    void refusalsReachTheOperator()
    {
        const struct {
            const char *module, *command, *sentence;
        } rows[] = {
            {"rl_program", "start", "The start of the program was refused: because. Switch the "},
            {"rl_program", "stop", "The stop of the program was refused: because. If the robot"},
            {"io", "io_signal.set_signal_value", "Setting the signal was refused: because. "},
            {"any", "other", ""}};
        for (const auto &[module, command, sentence] : rows) {
            const QString name = QString("%1.%2").arg(module, command);
            m_peer->controller.refuse(name, "because");
            m_peer->announce(name + " refused: because");
            QSignalSpy failed(m_peer->manager(), &brisa::ControllerManager::requestFailed);
            QVERIFY(m_peer->manager()->request(module, command, QJsonValue(), 0));
            QTRY_COMPARE(failed.size(), 1);
            const QString told = m_peer->told();
            QVERIFY2(*sentence ? told.startsWith(sentence) : told.isEmpty(), qPrintable(told));
        }
    }

    void startThatIsNotConfirmed()
    {
        m_peer->controller.script("rl_program.start", [this](const rpc::Message &) {
            QMetaObject::invokeMethod(this, [this] { m_peer->controller.setListening(false); });
            return QVector<QByteArray>();
        });
        play("start");
        QTRY_COMPARE(m_peer->banners.size(), 1);
        QVERIFY(m_peer->told().contains("was not confirmed: the link was lost. It may have been"));
    }

    void hotUpdates()
    {
        m("tavik.project.point._list")
            ->fromJsonText(nullptr,
                           R"([{"name": "A", "property": "cart"},)"
                           R"({"name": "B", "property": "joint"}])");
        update(1, "edit");
        QTRY_COMPARE(m_peer->hub.received("hub.command"), 1);
        const QJsonObject joint {{"name", "B"}, {"property", "joint"}, {"type", "jointtarget"}};
        const QJsonObject value {{"operator", "edit"}, {"variables", QJsonArray {joint}}};
        QCOMPARE(m_peer->hub.last("hub.command").params.toObject(),
                 (QJsonObject {{"key", "project.variable"}, {"value", value}}));
        m_peer->hub.answer("hub.command", -7);
        update(0, "add");
        QTRY_COMPARE(m_peer->banners.size(), 1);
        QVERIFY(m_peer->told().contains("point A: code -7"));
        m_peer->hub.refuse("hub.command", "the program runs");
        m_peer->announce("project.variable refused: the program runs");
        update(0, "add");
        QTRY_COMPARE(m_peer->banners.size(), 1);
        QVERIFY(m_peer->told().contains("point A: the program runs"));
        update(2, "edit"); // no such point
        update(0, "polish");
        m_peer->setHubUp(false);
        update(0, "edit"); // nobody to tell
        QCOMPARE(m_peer->hub.received("hub.command"), 3);
        QCOMPARE(m_peer->told(), QString());
    }

private:
    void play(const QString &word)
    {
        if (word.endsWith("filter")) {
            m("brisa.r.zeplet.filter.run")->set(nullptr, word == "filter");
            m("brisa.r.zeplet.filter.stop")->set(nullptr, word == "filter");
        } else if (word == "running" || word == "idle") {
            m("brisa.r.state")->set(nullptr, word == "running" ? "program" : "idle");
        } else if (word == "run" || word == "stopped") {
            m("brisa.r.zeplet.state")->set(nullptr, word == "run" ? "run" : "stop");
        } else if (word == "down" || word == "up") {
            m_peer->setControllerUp(word == "up");
        } else {
            m("brisa.r.operator")->set(nullptr, word);
        }
    }

    static void update(int position, const QString &operation)
    {
        m("tavik.project.point.hot_update.points")->clear(nullptr);
        m("tavik.project.point.hot_update.points")->set(nullptr, "#0", position, true);
        m("tavik.project.point.hot_update.operate")->set(nullptr, operation);
    }

    /** The requests to start and to stop so far; what was sent before has arrived. Nobody else
     * sends the mark, so its answer can't be that to an earlier request. */
    QString sent()
    {
        m_peer->controller.answer("mark.get", QJsonArray());
        QSignalSpy answered(m_peer->manager()->cmdItemMobj("response", "mark.get"),
                            &ModuleObject::changed);
        m_peer->manager()->request("mark", "get", QJsonValue(), 0);
        answered.wait();
        QStringList sent;
        for (const rpc::Message &request : m_peer->controller.requests()) {
            if (request.method.startsWith("rl_program."))
                sent.append(request.method.section('.', 1));
        }
        return sent.join(' ');
    }

    std::unique_ptr<RobotPeer> m_peer;
    QStringList m_states;
};

QTEST_GUILESS_MAIN(TestRunControl)
#include "tst_runcontrol.moc"
