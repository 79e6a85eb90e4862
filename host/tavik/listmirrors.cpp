#include "tavik/listmirrors_p.h"

#include "brisa/controllermanager.h"
#include "link/client.h"
#include "ostrel/moduleobject.h"
#include "tavik/storeedit_p.h"

#include <QJsonArray>
#include <QJsonObject>
#include <algorithm>

namespace tavik
{

namespace
{

constexpr int requestTimeout = 4800; // ms

using Check = bool (*)(const QJsonValue &value);

bool isText(const QJsonValue &value)
{
    return value.isString();
}

bool isBool(const QJsonValue &value)
{
    return value.isBool();
}

bool isSignalValue(const QJsonValue &value)
{
    return value.isBool() || value.isDouble();
}

bool isListOf(const QJsonValue &value, Check check)
{
    const QJsonArray list = value.toArray();
    return value.isArray() && std::all_of(list.begin(), list.end(), check);
}

bool areTexts(const QJsonValue &value)
{
    return isListOf(value, isText);
}

bool areNamed(const QJsonValue &value)
{
    return isListOf(value, [](const QJsonValue &entry) {
        return entry.toObject().value(QLatin1String("name")).isString();
    });
}

bool areVariables(const QJsonValue &value)
{
    return areNamed(value) && isListOf(value, [](const QJsonValue &entry) {
               return entry.toObject().value(QLatin1String("type")).isString();
           });
}

bool areSystemSignals(const QJsonValue &value)
{
    return isListOf(value, [](const QJsonValue &entry) {
        return entry.toObject().value(QLatin1String("signal")).isString();
    });
}

bool areRegisters(const QJsonValue &value)
{
    return areNamed(value) && isListOf(value, [](const QJsonValue &entry) {
               return areTexts(entry.toObject().value(QLatin1String("value")));
           });
}

bool areSignalValues(const QJsonValue &value)
{
    const QJsonObject values = value.toObject();
    return value.isObject() && std::all_of(values.begin(), values.end(), isSignalValue);
}

/** The six types, and names that are there once. */
bool isCatalogue(const QJsonValue &value)
{
    QSet<QString> names;
    const QJsonArray list = value.toArray();
    return value.isArray() && std::all_of(list.begin(), list.end(), [&](const QJsonValue &entry) {
               const QString name = entry.toObject().value(QLatin1String("name")).toString();
               const int type = entry.toObject().value(QLatin1String("signal_type")).toInt();
               const bool known = names.contains(name);
               names.insert(name);
               return !name.isEmpty() && !known && type >= 1 && type <= 6;
           });
}

} // namespace

/** A member, or a member's member, of what the controller sends, and where it is kept. */
struct Mirrored {
    const char *member;
    const char *inner; ///< null where it is the member itself
    const char *key;
    Check check;
};

namespace
{

constexpr Mirrored ioMembers[] = {
    {"input_system_io", nullptr, "tavik.robot.sysytem_io.input_system_io", areSystemSignals},
    {"output_system_io", nullptr, "tavik.robot.sysytem_io.output_system_io", areSystemSignals},
    {"input_simu_mode", nullptr, "tavik.robot.io.input_simu_mode", isBool},
};
constexpr Mirrored overviewMembers[] = {
    {"autoload_prj_path", nullptr, "tavik.project.autoload_prj_path", isText},
    {"cur_task", nullptr, "tavik.project.cur_task", isText},
    {"cur_func", nullptr, "tavik.project.cur_func", isText},
    {"tasks", nullptr, "tavik.project.tasks", areTexts},
};
constexpr Mirrored frameMembers[] = {
    {"tool", "system_list", "tavik.project.tool.system_list", areNamed},
    {"tool", "_list", "tavik.project.tool._list", areNamed},
    {"wobj", "system_list", "tavik.project.wobj.system_list", areNamed},
    {"wobj", "_list", "tavik.project.wobj._list", areNamed},
    {"g_tools", nullptr, "tavik.setting.g_tool.g_tools", areNamed},
    {"g_wobjs", nullptr, "tavik.setting.g_wobj.g_wobjs", areNamed},
    {"var_system_list", nullptr, "tavik.project.var.system_list", areVariables},
};

QJsonValue memberOf(const QJsonValue &content, const Mirrored &mirrored)
{
    const QJsonValue member = content.toObject().value(QLatin1String(mirrored.member));
    return mirrored.inner ? member.toObject().value(QLatin1String(mirrored.inner)) : member;
}

QString valuesKey()
{
    return QStringLiteral("tavik.robot.io.values");
}

} // namespace

ListMirrors::ListMirrors(brisa::ControllerManager *controller, QObject *parent)
    : QObject(parent)
    , m_controller(controller)
{
    connectReader("response", "io.get", &ListMirrors::readIo);
    connectReader("notify", "io.state", &ListMirrors::readIo);
    connectReader("response", "io.io_signal.get_signal_value", &ListMirrors::readAllValues);
    connectReader("notify", "io.signal_value", &ListMirrors::readChangedValues);
    connectReader("response", "register.get", &ListMirrors::readRegisters);
    connectReader("notify", "register.state", &ListMirrors::readRegisters);
    connectReader("response", "project.overview.get", &ListMirrors::readOverview);
    connectReader("notify", "project.overview", &ListMirrors::readOverview);
    connectReader("response", "project.frames.get", &ListMirrors::readFrames);
    connectReader("notify", "project.frames", &ListMirrors::readFrames);
    connect(controller, &brisa::ControllerManager::rcConnected, this, &ListMirrors::ask);
}

void ListMirrors::connectReader(const char *group, const char *path, Reader reader)
{
    const ostrel::ModuleObject *const node
        = m_controller->cmdItemMobj(QLatin1String(group), QLatin1String(path));
    connect(node, &ostrel::ModuleObject::changed, this,
            [this, node, reader] { (this->*reader)(node->exportToJson()); });
}

void ListMirrors::ask()
{
    const QJsonObject everything {{"signal_value", QJsonObject()}};
    const struct {
        const char *module;
        const char *command;
        QJsonValue argument;
    } requests[] = {{"io", "get", {}},
                    {"io", "io_signal.get_signal_value", everything},
                    {"register", "get", {}},
                    {"project", "frames.get", {}},
                    {"project", "overview.get", {}}};
    for (const auto &[module, command, argument] : requests)
        m_controller->request(QLatin1String(module), QLatin1String(command), argument,
                              requestTimeout);
}

void ListMirrors::readIo(const QJsonValue &content)
{
    if (!accept(QStringLiteral("io"), content.isObject()))
        return;
    mirrorSignals(content.toObject().value(QLatin1String("signals")));
    for (const Mirrored &mirrored : ioMembers)
        mirror(mirrored, content);
}

/** The controller's list becomes one child per signal, by name, in the list's order. */
void ListMirrors::mirrorSignals(const QJsonValue &catalogue)
{
    const QString key = QStringLiteral("tavik.robot.io.signal_detail");
    if (catalogue.isUndefined() || !accept(key, isCatalogue(catalogue)))
        return;
    ostrel::ModuleObject fresh;
    fresh.importFromJson(nullptr, QJsonObject(), true, true, false);
    const QJsonArray entries = catalogue.toArray();
    for (const QJsonValue &entry : entries) {
        QJsonObject signal = entry.toObject();
        const QString name = signal.take(QStringLiteral("name")).toString();
        fresh.setChild(nullptr, name, signal.toVariantMap(), false);
    }
    setWhereDifferent(key, fresh, this);
}

void ListMirrors::readAllValues(const QJsonValue &content)
{
    const QJsonValue values = content.toObject().value(QLatin1String("signal_value"));
    if (accept(valuesKey(), areSignalValues(values)))
        setWhereDifferent(valuesKey(), values, this);
}

void ListMirrors::readChangedValues(const QJsonValue &content)
{
    if (!accept(valuesKey(), areSignalValues(content)))
        return;
    ostrel::ModuleObject *const values = m(valuesKey());
    const QJsonObject changed = content.toObject();
    bool differs = false;
    for (auto it = changed.begin(); it != changed.end(); ++it) {
        const ostrel::ModuleObject *const value = values->child(it.key());
        differs = differs || !value || value->exportToJson() != it.value();
    }
    if (differs)
        rpc::deliver(valuesKey(),
                     [&] { values->importFromJson(this, content, false, true, true); });
}

void ListMirrors::readRegisters(const QJsonValue &content)
{
    const QString key = QStringLiteral("tavik.robot.register._list");
    if (accept(key, areRegisters(content)))
        setWhereDifferent(key, content, this);
}

void ListMirrors::readOverview(const QJsonValue &content)
{
    if (!accept(QStringLiteral("project.overview"), content.isObject()))
        return;
    for (const Mirrored &mirrored : overviewMembers)
        mirror(mirrored, content);
    Q_EMIT overviewRead();
}

void ListMirrors::readFrames(const QJsonValue &content)
{
    if (!accept(QStringLiteral("project.frames"), content.isObject()))
        return;
    for (const Mirrored &mirrored : frameMembers)
        mirror(mirrored, content);
}

void ListMirrors::mirror(const Mirrored &mirrored, const QJsonValue &content)
{
    const QString key = QLatin1String(mirrored.key);
    const QJsonValue value = memberOf(content, mirrored);
    if (!value.isUndefined() && accept(key, mirrored.check(value)))
        setWhereDifferent(key, value, this);
}

bool ListMirrors::accept(const QString &key, bool wellFormed)
{
    if (wellFormed)
        m_malformed.remove(key);
    else if (!m_malformed.contains(key))
        qCWarning(tavikLog).noquote()
            << QStringLiteral("what the controller says of %1 is malformed: "
                              "the last values stay")
                   .arg(key);
    if (!wellFormed)
        m_malformed.insert(key);
    return wellFormed;
}

} // namespace tavik
