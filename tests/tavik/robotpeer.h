#pragma once

#include "../interface/fakecontroller.h"

#include <brisa/settingmanager.h>
#include <tavik/robotdata.h>

#include <QDir>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <memory>

/** A controller that knows all that the robot's data asks for, and a panel's directory. */
class RobotPeer : public FakeController
{
public:
    RobotPeer()
    {
        QDir::setCurrent(directory.path());
        QDir().mkpath("ws");
        setIdentity("R1");
        for (const char *method :
             {"io.get", "register.get", "project.frames.get", "project.overview.get",
              "project.overview.open", "io.io_signal.get_signal_value"})
            controller.answer(method, QJsonObject());
        controller.answer("register.get", QJsonArray());
        controller.answer("io.io_signal.get_signal_value",
                          QJsonObject {{"signal_value", QJsonObject()}});
        controller.answer("rl_program.start", true);
        controller.answer("rl_program.stop", true);
        settings()->set("workspace", "ws");
        m("tavik")->remove(nullptr, false);
        m("brisa")->remove(nullptr, false);
        restart();
    }

    void restart()
    {
        data.reset();
        data = std::make_unique<tavik::RobotData>();
    }

    void setIdentity(const QString &id)
    {
        controller.answer("system.state.get", QJsonObject {{"id", id}, {"power", "off"}});
    }

    static brisa::SettingManager *settings()
    {
        return brisa::ManagerHelper::instance()->settingManager();
    }

    void notify(const QString &path, const QJsonValue &value)
    {
        controller.notify("notify", QJsonObject {{"path", path}, {"value", value}});
    }

    /** Waits until all notifications so far have been delivered. */
    void pass()
    {
        QSignalSpy marked(manager()->cmdItemMobj("notify", "mark"), &ostrel::ModuleObject::changed);
        notify("mark", 1);
        QTRY_COMPARE(marked.size(), 1);
    }

    void write(const QString &path, const QByteArray &content)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    /** What the operator was told since the last call. */
    QString told()
    {
        QStringList texts;
        for (const QVariantList &banner : qAsConst(banners))
            texts.append(banner.at(2).toString());
        banners.clear();
        return texts.join('\n');
    }

    static void announce(const QString &pattern)
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(pattern));
    }

    QTemporaryDir directory;
    QSignalSpy banners {brisa::ManagerHelper::instance(), &brisa::ManagerHelper::logThrown};
    std::unique_ptr<tavik::RobotData> data;
};
