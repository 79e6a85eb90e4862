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

Q_DECLARE_METATYPE(const QMetaObject *)

// What plugins may ask the interface objects' types at run time, with the one header that they
// include.
class TestInterfaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ownMethods_data();
    void ownMethods();
    void extensionPointsAddNothing();
};

void TestInterfaces::ownMethods_data()
{
    QTest::addColumn<const QMetaObject *>("type");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("methods");

    QTest::newRow("manager") << &InterfaceManager::staticMetaObject << "zeplet::InterfaceManager"
                             << QStringList {"sigNetworkConnect()", "sigNetworkDisConnect(bool)"};
    QTest::newRow("network") << &NetworkInterface::staticMetaObject << "zeplet::NetworkInterface"
                             << QStringList();
    QTest::newRow("bus") << &ZepletEventSystem::staticMetaObject << "zeplet::ZepletEventSystem"
                         << QStringList {
                                "eventPublished(zeplet::ZepletEvent)",
                                "subscriptionAdded(QString,zeplet::ZepletEventType,QString)",
                                "subscriptionRemoved(QString,zeplet::ZepletEventType,QString)"};
}

void TestInterfaces::ownMethods()
{
    QFETCH(const QMetaObject *, type);
    QTEST(QString::fromLatin1(type->className()), "name");
    QTEST(::ownMethods(*type), "methods");
    QCOMPARE(type->propertyOffset(), type->propertyCount());
    for (int i = type->methodOffset(); i < type->methodCount(); ++i)
        QCOMPARE(type->method(i).methodType(), QMetaMethod::Signal);
}

void TestInterfaces::extensionPointsAddNothing()
{
    static_assert(std::is_base_of_v<BaseInterface, NetworkInterface>);
    QObject parent;
    const QVector<BaseInterface *> interfaces {
        new BaseInterface(&parent), new CustomInterface(&parent), new ServiceInterface(&parent)};
    for (const BaseInterface *added : interfaces) {
        QCOMPARE(added->parent(), &parent);
        QCOMPARE(added->metaObject(), &QObject::staticMetaObject);
    }
    NetworkInterface network(nullptr);
    QVERIFY(network.qt_metacast("zeplet::NetworkInterface"));
    QVERIFY(!network.qt_metacast("zeplet::BaseInterface"));
    QCOMPARE(network.metaObject()->superClass(), &QObject::staticMetaObject);
}

QTEST_MAIN(TestInterfaces)
#include "tst_interfaces.moc"
