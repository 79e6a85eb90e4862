#include <zeplet/interface/interfacemanager.h>

#include <ostrel/moduleobject.h>
#include <zeplet/interface/hostmanagers_p.h>
#include <zeplet/interface/nodejson_p.h>
#include <zeplet/log/hostlines_p.h>
#include <zeplet/plugin/uiservices.h>

#include <algorithm>
#include <iterator>

namespace zeplet
{

namespace
{

enum SignalType { DigitalInput = 1, DigitalOutput = 2, AnalogueOutput = 6 };

constexpr int answerTimeoutMs = 1600;
constexpr int requestTimeoutMs = 4800;
const QString module = QStringLiteral("io");
const QString valueMember = QStringLiteral("signal_value");

int signalType(const QString &name)
{
    static const QStringList names
        = {QStringLiteral("DI"), QStringLiteral("DO"), QStringLiteral("GI"),
           QStringLiteral("GO"), QStringLiteral("AI"), QStringLiteral("AO")};
    const int index = names.indexOf(name);
    return index < 0 ? -1 : index + 1;
}

// Asks for all values; undefined, with a log line, where none came.
QJsonValue readValues(InterfaceManager *manager)
{
    if (!manager->getRobotConnected()) {
        errorLine() << QStringLiteral("net work error!");
        return QJsonValue::Undefined;
    }
    const QJsonObject all {{valueMember, QJsonObject()}};
    const QJsonObject answer = nodeToJson(controllerManager()->execRequest(
                                              module, QStringLiteral("io_signal.get_signal_value"),
                                              all, true, answerTimeoutMs))
                                   .toObject();
    if (!answer.contains(valueMember))
        errorLine() << QStringLiteral("get io signal error!");
    return answer.value(valueMember);
}

bool isSystemSignal(const QString &name)
{
    const ostrel::ModuleObject *const lists[]
        = {m(QStringLiteral("tavik.robot.sysytem_io.input_system_io"), nullptr),
           m(QStringLiteral("tavik.robot.sysytem_io.output_system_io"), nullptr)};
    return std::any_of(std::begin(lists), std::end(lists), [&](const ostrel::ModuleObject *list) {
        return list->indexOf(QStringLiteral("signal"), name) >= 0;
    });
}

// A host without the panel's own plugin shows it all the same: the operator must know.
void showRefusal(InterfaceManager *manager, const QString &text)
{
    if (ThrowLog(QStringLiteral("zeplet"), ThrowLogError, text) != 0)
        brisa::ManagerHelper::throwLog(manager, QStringLiteral("error"), text);
}

} // namespace

bool InterfaceManager::getIOValue(const QString &name)
{
    const QJsonValue values = readValues(this);
    if (values.isUndefined())
        return false;
    const QJsonObject signalValues = values.toObject();
    if (!signalValues.contains(name)) {
        // Tools look for this very text, which never had the name filled in.
        infoLine() << QStringLiteral("io signal [%1] is not exist!");
        return false;
    }
    return signalValues.value(name).toBool(false);
}

QHash<QString, QVariant> InterfaceManager::getIOHash()
{
    return readValues(this).toObject().toVariantHash();
}

QStringList InterfaceManager::getIOByType(int type)
{
    if (type < DigitalInput || type > AnalogueOutput) {
        errorLine() << QStringLiteral("Get IO By Err Signaltype!");
        return {};
    }
    ostrel::ModuleObject *const catalogue
        = m(QStringLiteral("tavik.robot.io.signal_detail"), nullptr);
    QStringList names;
    for (int i = 0; i < catalogue->childCount(); ++i) {
        const ostrel::ModuleObject *const signal = catalogue->childAt(i);
        if (signal->getInt(QStringLiteral("signal_type"), 0) == type)
            names.append(signal->name());
    }
    return names;
}

QStringList InterfaceManager::getIOByType(const QString &typeName)
{
    return getIOByType(signalType(typeName));
}

int InterfaceManager::setIOValue(const QString &name, int type, bool value)
{
    const bool digital = type == DigitalInput || type == DigitalOutput;
    if (digital && isSystemSignal(name)) {
        showRefusal(this, tr("System IO cannot be simulated."));
        return 0;
    }
    if (type == DigitalInput
        && !m(QStringLiteral("tavik.robot.io.input_simu_mode"), nullptr)->getBool(false)) {
        showRefusal(this, tr("DI Signal can only be changed in simulation mode."));
        return 0;
    }
    const QJsonObject data {{valueMember, QJsonObject {{name, value}}}};
    controllerManager()->request(module, QStringLiteral("io_signal.set_signal_value"), data,
                                 requestTimeoutMs);
    return 0;
}

int InterfaceManager::setIOValue(const QString &name, const QString &typeName, bool value)
{
    return setIOValue(name, signalType(typeName), value);
}

QJsonValue InterfaceManager::getRegisterValue()
{
    return nodeToJson(m(QStringLiteral("tavik.robot.register._list"), nullptr));
}

QHash<QString, QStringList> InterfaceManager::getRegisterHash()
{
    const QString nameMember = QStringLiteral("name");
    const QString registerValue = QStringLiteral("value");
    QHash<QString, QStringList> registers;
    const QJsonArray records = getRegisterValue().toArray();
    for (const QJsonValue &record : records) {
        const QJsonObject object = record.toObject();
        if (object.contains(nameMember) && object.contains(registerValue))
            registers.insert(object.value(nameMember).toString(),
                             object.value(registerValue).toVariant().toStringList());
    }
    return registers;
}

} // namespace zeplet
