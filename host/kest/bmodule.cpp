#include "kest/bmodule.h"

#include "ostrel/moduleobject.h"

#include <QMultiHash>

namespace
{

QMultiHash<QString, kest::BModule *> &boundModules()
{
    static QMultiHash<QString, kest::BModule *> modules;
    return modules;
}

} // namespace

namespace kest
{

BModule::BModule(QObject *parent)
    : QObject(parent)
{
}

BModule::~BModule()
{
    boundModules().remove(m_key, this);
}

QString BModule::name() const
{
    return {};
}

QWidget *BModule::wgt()
{
    return nullptr;
}

void BModule::setup() { }

void BModule::afterSetup() { }

void BModule::init() { }

void BModule::afterInit() { }

void BModule::render() { }

void BModule::afterRender() { }

void BModule::idle() { }

void BModule::afterIdle() { }

void BModule::detach() { }

void BModule::beforeDetach() { }

ostrel::ModuleObject *BModule::mobj() const
{
    return m_key.isEmpty() ? nullptr : m(m_key);
}

QString BModule::mobjKey() const
{
    return m_key;
}

void BModule::bindMobj(const QString &key)
{
    boundModules().remove(m_key, this);
    m_key = key;
    if (!key.isEmpty())
        boundModules().insert(key, this);
}

} // namespace kest

kest::BModule *bModule(const QString &key)
{
    return boundModules().value(key);
}

QString mName(const QString &first, const QString &second)
{
    return first + QLatin1Char('.') + second;
}

QString mName(const QString &first, const QString &second, const QString &third)
{
    return mName(mName(first, second), third);
}
