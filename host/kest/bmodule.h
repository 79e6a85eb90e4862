#pragma once

#include "hostexport.h"

#include <QObject>
#include <QString>

class QWidget;

namespace ostrel
{
class ModuleObject;
}

namespace kest
{

/**
 * A module of the host: the unit that the module framework creates, drives and destroys. The
 * defaults of all hooks do nothing. Whatever a module put into the UI goes when it is destroyed:
 * the containers watch QObject::destroyed, which comes before its children are deleted. GUI thread.
 */
class HOST_EXPORT BModule : public QObject
{
    Q_OBJECT

public:
    explicit BModule(QObject *parent = nullptr);
    /** Withdraws everything the module put into the UI and its binding to the data node. */
    ~BModule() override;

    virtual QString name() const;
    virtual QWidget *wgt();
    virtual void setup();
    virtual void afterSetup();
    virtual void init();
    virtual void afterInit();
    virtual void render();
    virtual void afterRender();
    virtual void idle();
    virtual void afterIdle();
    virtual void detach();
    virtual void beforeDetach();

    /** The host data node that the module is bound to; null before bindMobj(). */
    ostrel::ModuleObject *mobj() const;
    /** The key of that node; empty before bindMobj(). */
    QString mobjKey() const;

protected:
    /** Binds the module to the data node of that key, under which bModule() finds it. Of several
     *  modules with one key the last bound is found. An earlier binding of this module ends. */
    void bindMobj(const QString &key);

private:
    QString m_key;
};

} // namespace kest

/** The module bound to that key, or null. */
HOST_EXPORT kest::BModule *bModule(const QString &key);

/** Joins the parts of a host key with dots. */
HOST_EXPORT QString mName(const QString &first, const QString &second);
HOST_EXPORT QString mName(const QString &first, const QString &second, const QString &third);
