#include <zeplet/rl/rlmanager.h>

#include <zeplet/rl/rlbasewidget.h>

#include <brisa/rlmanager.h>

namespace zeplet
{

namespace
{

using brisa::RlManager;

RlManager &record()
{
    return RlManager::getRlManager();
}

RlManager::WidgetMaker wrapped(RLManager::MakeContent make)
{
    return [make = std::move(make)](QWidget *parent) -> brisa::BaseContentWidget * {
        return new RLBaseWidget(make(), parent);
    };
}

QString plainPattern(const QString &type)
{
    return QStringLiteral("^\\s*%1\\s*(?://.*)?$").arg(type);
}

} // namespace

RLManager::RLManager(QObject *parent)
    : QObject(parent)
{
}

RLManager::~RLManager() = default;

void RLManager::createTypeKey(const QString &type)
{
    record().typeKeys.append(type);
}

void RLManager::createGroups(const QString &key, const QString &title)
{
    record().groups.append({key, title});
}

void RLManager::createTypeToGroup(const QString &key, const QStringList &types)
{
    record().groupTable[key] += types;
}

void RLManager::createTypeToGroup(const QString &key, const QString &type)
{
    createTypeToGroup(key, QStringList {type});
}

void RLManager::createInsDescribe(const QString &type, const QString &text)
{
    record().descriptions[type] = text;
}

void RLManager::createInsDefault(const QString &type, const QString &text)
{
    record().defaults[type] = text;
}

void RLManager::createPattern(const QString &type, const QString &pattern)
{
    record().patterns[QStringLiteral("c_") + type] = pattern;
}

void RLManager::createSkeleton(const QString &type, const QString &skeleton)
{
    record().skeletons[QStringLiteral("s_") + type] = skeleton;
}

void RLManager::createInsertWidget(const QString &type, MakeContent make)
{
    record().insertWidgets[type] = wrapped(std::move(make));
}

void RLManager::createPropertyWidget(const QString &type, MakeContent make)
{
    record().propertyWidgets[type] = wrapped(std::move(make));
}

void RLManager::createData(const QString &group, const QString &type, const QString &describe,
                           MakeContent makeInsert, MakeContent makeProperty)
{
    createTypeKey(type);
    createSkeleton(type, type);
    createPattern(type, plainPattern(type));
    createInsDescribe(type, describe);
    createInsDefault(type, QString());
    createInsertWidget(type, std::move(makeInsert));
    createPropertyWidget(type, std::move(makeProperty));
    createTypeToGroup(group, type);
}

} // namespace zeplet
