#pragma once

#include "fakepeer.h"

#include <brisa/controllermanager.h>
#include <brisa/managerhelper.h>
#include <nexo/nexo.h>
#include <ostrel/moduleobject.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

/** A controller with its service hub for the panel of this process, each of which comes and goes
 *  when the test says so. */
class FakeController
{
public:
    FakeController()
    {
        controller.answer(QStringLiteral("system.state.get"),
                          QJsonObject {{QStringLiteral("power"), QStringLiteral("off")}});
        controller.answer(QStringLiteral("system.controller.get_params"), QJsonObject());
        hub.answer(QStringLiteral("hub.snapshot"),
                   QJsonObject {{QStringLiteral("demo"),
                                 QJsonObject {{QStringLiteral("speed"), 5},
                                              {QStringLiteral("name"), QStringLiteral("x")}}}});
        for (const char *method : {"hub.watch", "hub.set", "hub.command"})
            hub.answer(QLatin1String(method), true);
        controller.setListening(false);
        hub.setListening(false);
    }

    ~FakeController()
    {
        manager()->close();
        nexo()->close();
    }

    static brisa::ControllerManager *manager()
    {
        return brisa::ManagerHelper::instance()->controllerManager();
    }

    static bool isHubUp() { return nexo()->mobj()->r(QStringLiteral("connected"))->getBool(false); }

    void setControllerUp(bool up)
    {
        if (manager()->isConnected() == up)
            return;
        controller.setListening(up);
        if (up)
            manager()->open(controller.url());
        QTRY_COMPARE(manager()->isConnected(), up);
    }

    void setHubUp(bool up)
    {
        if (isHubUp() == up)
            return;
        hub.setListening(up);
        if (up)
            nexo()->open(hub.url());
        QTRY_COMPARE(isHubUp(), up);
    }

    void setUp(bool up)
    {
        setControllerUp(up);
        setHubUp(up);
    }

    FakePeer controller;
    FakePeer hub;
};
