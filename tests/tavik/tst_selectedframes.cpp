#include "robotpeer.h"

/** In which tool and work object the controller takes moves. */
class TestSelectedFrames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_peer = std::make_unique<RobotPeer>();
        m("tavik.toolpage.wobj")->set(nullptr, "table");
        m_peer->setUp(true);
        QTRY_COMPARE(m_peer->hub.received("hub.set"), 2);
    }

    void cleanup() { m_peer.reset(); }

    void followTheSelection()
    {
        QCOMPARE(held(), QString("tool0 table"));
        select("tool", "grip");
        QCOMPARE(held(), QString("grip table"));
        m_peer->setHubUp(false);
        select("wobj", "away"); // told after the next connect
        m_peer->setHubUp(true);
        QCOMPARE(held(), QString("grip away"));
        m("brisa.r.id")->set(nullptr, "R2"); // another robot has other tools
        QCOMPARE(held(), QString("tool0 wobj0"));
        QVERIFY(m_peer->told().contains("tool0 is selected in place of grip"));
    }

    void onlyTheEndOfASwitchCounts()
    {
        ostrel::ModuleObject *const blocking = m("tavik.project._blocking_toolwobj_frame_sync");
        blocking->set(nullptr, true);
        select("tool", "grip");
        select("wobj", "g_wobj_1");
        blocking->set(nullptr, false);
        QCOMPARE(held(), QString("grip g_wobj_1"));
        QCOMPARE(m_peer->hub.received("hub.set"), 4);
    }

    void refusalReachesTheOperator()
    {
        m_peer->hub.refuse("hub.set", "because");
        m_peer->announce("motion.tool refused: because");
        select("tool", "grip");
        QTRY_COMPARE(m_peer->banners.size(), 1);
        QVERIFY(m_peer->told().contains("moves are meant in grip: because. Select it again"));
    }

private:
    static void select(const QString &frame, const QString &name)
    {
        m("tavik.toolpage." + frame)->set(nullptr, name);
    }

    /** What the hub was told last; what was sent before has arrived. */
    QString held()
    {
        nexo()->execCommand(nullptr, "mark");
        QString tool, wobj;
        for (const rpc::Message &request : m_peer->hub.requests()) {
            const QJsonObject params = request.params.toObject();
            if (params["key"] == "motion.tool")
                tool = params["value"].toString();
            else if (params["key"] == "motion.wobj")
                wobj = params["value"].toString();
        }
        return tool + ' ' + wobj;
    }

    std::unique_ptr<RobotPeer> m_peer;
};

QTEST_GUILESS_MAIN(TestSelectedFrames)
#include "tst_selectedframes.moc"
