#include "checksteps.h"

#include <kest/bmodule.h>
#include <kest/centerwidget.h>
#include <zeplet/zeplet.h>

#include <QJsonArray>
#include <QJsonObject>

using namespace zeplet;

namespace
{

const QString self = QStringLiteral("check");
const QString example = QStringLiteral("monitor");

bool areRegistered()
{
    const QJsonObject known
        = zepletInterface()->getNodeData(QStringLiteral("ostrel.plugins")).toObject();
    return known.contains(self) && known.contains(example);
}

bool hasModule(const QString &plugin)
{
    return bModule(mName(QStringLiteral("ostrel"), QStringLiteral("zeplet"), plugin)) != nullptr;
}

bool hasNavigationEntry(const QString &nav)
{
    const QJsonArray entries = zepletInterface()
                                   ->getNodeData(QStringLiteral("kivra.page.robot.page.pack.page"))
                                   .toArray();
    return std::any_of(entries.begin(), entries.end(), [&nav](const QJsonValue &entry) {
        return entry.toObject().value(QStringLiteral("nav")).toString() == nav;
    });
}

bool isConnected(CheckSession *session)
{
    return session->simulator()->isReady() && zepletInterface()->getRobotConnected()
        && zepletInterface()->getNodeData(QStringLiteral("nexo.connected")).toBool();
}

} // namespace

CheckSteps startSteps(CheckSession *session)
{
    const QString page = mName(QStringLiteral("zeplet"), example);
    const QStringList order = {QStringLiteral("init"), QStringLiteral("afterInit"),
                               QStringLiteral("render"), QStringLiteral("idle")};
    return {
        {QStringLiteral("plugins registered"), {}, areRegistered},
        {QStringLiteral("modules made"), {}, [] { return hasModule(self) && hasModule(example); }},
        {QStringLiteral("centre page present"),
         {},
         [page] { return instantiatedCenterWidget()->page(page) != nullptr; }},
        {QStringLiteral("navigation entry present"),
         {},
         [page] { return hasNavigationEntry(page); }},
        {QStringLiteral("life cycle hooks in order: init, afterInit, render, idle"),
         {},
         [=] { return session->hooks() == order; },
         [=] { return session->hooks().join(QStringLiteral(", ")); }},
        {QStringLiteral("controller and hub connected"), [=] { session->simulator()->start(); },
         [=] { return isConnected(session); }},
    };
}
