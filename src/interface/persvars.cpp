#include <zeplet/interface/interfacemanager.h>

#include <nexo/nexo.h>
#include <ostrel/moduleobject.h>
#include <zeplet/interface/controllerversions_p.h>
#include <zeplet/interface/finite_p.h>
#include <zeplet/interface/nodejson_p.h>
#include <zeplet/log/hostlines_p.h>

namespace zeplet
{

namespace
{

enum Result { Sent = 0, InvalidInput = -1, UnsupportedVersion = -240 };

bool isSupported()
{
    if (isController23To32())
        return true;
    statusLine() << QStringLiteral("checkBrisaVersion err!")
                 << QStringLiteral(" current Brisa version : ")
                 << m(QStringLiteral("brisa.r.version"), nullptr)->getStr(QString());
    return false;
}

bool areFinite(const QVector<QString> &names, const QVector<QVariant> &values)
{
    for (int i = 0; i < values.size(); ++i) {
        if (isFinite(values.at(i)))
            continue;
        errorLine() << QStringLiteral("setValuesOfPERSVars: value is not finite, name=")
                    << names.at(i);
        return false;
    }
    return true;
}

} // namespace

int InterfaceManager::registPERSVars(const QVector<QString> &names)
{
    if (!isSupported())
        return UnsupportedVersion;
    ostrel::ModuleObject node(QStringLiteral("select"));
    for (int i = 0; i < names.size(); ++i)
        node.set(this, QLatin1Char('#') + QString::number(i), names.at(i), false);
    nexo()->set(this, QStringLiteral("monitor.select"), &node);
    return Sent;
}

int InterfaceManager::setValuesOfPERSVars(const QVector<QString> &names,
                                          const QVector<QVariant> &values)
{
    if (!isSupported())
        return UnsupportedVersion;
    if (names.size() != values.size() || !areFinite(names, values))
        return InvalidInput;
    ostrel::ModuleObject node(QStringLiteral("modify"));
    for (int i = 0; i < names.size(); ++i)
        node.setChild(this, names.at(i), values.at(i), false);
    nexo()->command(this, QStringLiteral("monitor.pers.modify"), &node);
    return Sent;
}

QVector<QString> InterfaceManager::getValuesOfPERSVars(const QVector<QString> &names)
{
    QVector<QString> values(names.size());
    if (!isSupported())
        return values;
    ostrel::ModuleObject node(QStringLiteral("names"));
    node.importFromJson(this, QJsonArray::fromStringList(names.toList()), true, true, false);
    ostrel::ModuleObject *const answer
        = nexo()->execCommand(this, QStringLiteral("monitor.pers.read"), &node);
    ostrel::ModuleObject *const data = answer ? answer->r(QStringLiteral("data")) : nullptr;
    const int count = data ? qMin(data->childCount(), values.size()) : 0;
    for (int i = 0; i < count; ++i)
        values[i] = data->childAt(i)->getStr(QString());
    statusLine() << QStringLiteral("Results:")
                 << QStringList(values.toList()).join(QStringLiteral(", "));
    return values;
}

QVector<QVariant> InterfaceManager::getRegistedPERSVars()
{
    if (!isSupported())
        return {};
    const QJsonValue names = nodeToJson(nexo()->get(this, QStringLiteral("monitor.pers")));
    return names.toArray().toVariantList().toVector();
}

} // namespace zeplet
