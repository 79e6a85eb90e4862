#include <zeplet/zeplet.h>

#include <QMetaMethod>
#include <QTest>

#include <type_traits>

using namespace zeplet;

namespace
{

QStringList ownMethods(const QMetaObject &type)
{
    QStringList signatures;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i)
        signatures.append(QString::fromLatin1(type.method(i).methodSignature()));
    return signatures;
}

} // namespace

// What plugins may ask the interface objects' types at run time, with the one header that they
// include.
class TestInterfaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ownMethods()
    {
        const struct {
            const QMetaObject &type;
            QString name;
            QStringList methods;
        } rows[] = {
            {InterfaceManager::staticMetaObject,
             "zeplet::InterfaceManager",
             {"sigNetworkConnect()", "sigNetworkDisConnect(bool)"}},
            {NetworkInterface::staticMetaObject, "zeplet::NetworkInterface", {}},
            {ZepletEventSystem::staticMetaObject,
             "zeplet::ZepletEventSystem",
             {"eventPublished(zeplet::ZepletEvent)",
              "subscriptionAdded(QString,zeplet::ZepletEventType,QString)",
              "subscriptionRemoved(QString,zeplet::ZepletEventType,QString)"}},
        };
        for (const auto &[type, name, methods] : rows) {
            QCOMPARE(QString(type.className()), name);
            QCOMPARE(::ownMethods(type), methods);
            QCOMPARE(type.propertyOffset(), type.propertyCount());
            for (int i = type.methodOffset(); i < type.methodCount(); ++i)
                QCOMPARE(type.method(i).methodType(), QMetaMethod::Signal);
        }
    }

    void extensionPointsAddNothing()
    {
        static_assert(std::is_base_of_v<BaseInterface, NetworkInterface>);
        QObject parent;
        const QVector<BaseInterface *> interfaces {new BaseInterface(&parent),
                                                   new CustomInterface(&parent),
                                                   new ServiceInterface(&parent)};
        for (const BaseInterface *added : interfaces) {
            QCOMPARE(added->parent(), &parent);
            QCOMPARE(added->metaObject(), &QObject::staticMetaObject);
        }
        NetworkInterface network(nullptr);
        QVERIFY(network.qt_metacast("zeplet::NetworkInterface"));
        QVERIFY(!network.qt_metacast("zeplet::BaseInterface"));
        QCOMPARE(network.metaObject()->superClass(), &QObject::staticMetaObject);
    }
};

QTEST_MAIN(TestInterfaces)
#include "tst_interfaces.moc"
