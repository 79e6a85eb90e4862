#pragma once

#include "fakecontroller.h"
#include "logcapture.h"
#include "standins.h"

#include <brisa/settingmanager.h>
#include <zeplet/interface/interfacemanager.h>

/** Any JSON; a text is easier to read than its constructors. */
inline QJsonValue json(const QByteArray &text)
{
    return QJsonDocument::fromJson('[' + text + ']').array().first();
}

/** Text with double quotes for single ones: moc stumbles over raw strings in a class. */
inline QString q(QString text)
{
    return text.replace('\'', '"');
}

/** The open project LOCALHOST/demo with a disk and an rsync of its own. rsync keeps
 *  what it was told to push as "pushed". */
class OpenProject
{
public:
    explicit OpenProject(FakeController &peers)
        : fake(peers)
    {
        brisa::ManagerHelper::instance()->setReady(true);
        settings()->set(QStringLiteral("workspace"), QDir::currentPath());
        m("tavik.project")
            ->importFromJson(nullptr, json(R"({"cur_project": "LOCALHOST/demo",
            "cur_func": "main", "cur_task": "t1", "point": {"_list": [], "default": {"id": 0,
            "name": "", "pers": "false", "d": [0, 0, 0], "value": {}}}})"),
                             true, true, true);
        setRsync("cp \"$5\" pushed");
        fake.setUp(true);
        setAnswer(0);
    }

    static brisa::SettingManager *settings()
    {
        return brisa::ManagerHelper::instance()->settingManager();
    }

    void setRsync(const QByteArray &body) { m_standIns.setRsync(body); }
    void setAnswer(const QJsonValue &answer) { fake.hub.answer("hub.command", answer); }

    static void setPoints(const QByteArray &points)
    {
        list()->importFromJson(nullptr, json(points), true, true, true);
    }
    static ostrel::ModuleObject *list() { return m("tavik.project.point._list"); }
    static QJsonValue element(const QString &name, const QString &index = "[0][0][0]")
    {
        return zeplet::zepletInterface()->getPointObjDataByName(name)["value"].toObject().value(
            index);
    }
    /** What was told to the controller through the store: "add 0", "" for nothing. */
    static QString announced()
    {
        const auto *trigger = m("tavik.project.point.hot_update");
        if (trigger->isNull())
            return QString();
        return trigger->getStr("operate", QString()) + ' '
            + trigger->exportToJson().toObject()["points"].toVariant().toStringList().join(' ');
    }
    /** The pushes since the last call. */
    QStringList takePushes() { return m_standIns.takeCalls().filter("rsync|"); }
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static QByteArray file() { return read("LOCALHOST/demo/point.json"); }
    static QByteArray pushed() { return read("pushed"); }

    FakeController &fake;

private:
    StandIns m_standIns;
};
