#include "points/armcamera.h"

#include <QTest>
#include <QtMath>

/** What a person sees of the cell: where things are, and how large. */
class TestArmCamera : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void views_data()
    {
        QTest::addColumn<double>("yaw");
        QTest::addColumn<double>("pitch");
        QTest::addColumn<QPointF>("x");
        QTest::addColumn<QPointF>("y");
        QTest::addColumn<QPointF>("z");
        QTest::newRow("side") << -90.0 << 0.0 << QPointF(1, 0) << QPointF(0, 0) << QPointF(0, -1);
        QTest::newRow("top") << -90.0 << 90.0 << QPointF(1, 0) << QPointF(0, -1) << QPointF(0, 0);
        QTest::newRow("front") << 0.0 << 0.0 << QPointF(0, 0) << QPointF(1, 0) << QPointF(0, -1);
        const double half = qSqrt(0.5);
        QTest::newRow("corner") << -45.0 << 0.0 << QPointF(half, 0) << QPointF(half, 0)
                                << QPointF(0, -1);
    }

    // Directions on the screen of 1000 mm along each axis.
    void views()
    {
        QFETCH(double, yaw);
        QFETCH(double, pitch);
        ArmCamera camera;
        camera.turnTo(yaw, pitch);
        camera.fit({{-1000, -1000, -1000}, {1000, 1000, 1000}}, QRectF(0, 0, 300, 300));
        const QPointF origin = camera.project({});
        const QVector<QVector3D> axes {{1000, 0, 0}, {0, 1000, 0}, {0, 0, 1000}};
        const char *const names[] = {"x", "y", "z"};
        for (int i = 0; i < axes.size(); ++i) {
            const QPointF seen = (camera.project(axes.at(i)) - origin) / (1000 * camera.scale());
            const QPointF wanted = *static_cast<QPointF *>(qFetchElement(names[i]));
            QVERIFY2((seen - wanted).manhattanLength() < 1e-4, names[i]);
        }
    }

    void everythingFits()
    {
        const Box box {{-200, -700, 0}, {1400, 300, 1100}};
        const QRectF area(10, 60, 340, 250);
        for (int yaw = -180; yaw < 180; yaw += 30) {
            for (int pitch = 0; pitch <= 90; pitch += 15) {
                ArmCamera camera;
                camera.turnTo(yaw, pitch);
                camera.fit(box, area);
                QRectF seen(camera.project(box.least), QSizeF(0, 0));
                for (const QVector3D &corner : box.corners()) {
                    const QPointF at = camera.project(corner);
                    QVERIFY(area.adjusted(-0.1, -0.1, 0.1, 0.1).contains(at));
                    seen.setCoords(qMin(seen.left(), at.x()), qMin(seen.top(), at.y()),
                                   qMax(seen.right(), at.x()), qMax(seen.bottom(), at.y()));
                }
                const double used
                    = qMax(seen.width() / area.width(), seen.height() / area.height());
                QVERIFY(used > 0.999);
            }
        }
    }

    void nearHidesFar()
    {
        ArmCamera camera;
        camera.turnTo(-90, 20);
        QVERIFY(camera.depth({0, -100, 0}) > camera.depth({0, 100, 0}));
        QVERIFY(camera.depth({0, 0, 100}) > camera.depth({0, 0, 0}));
    }

    // A tool that points down, and turns about all fixed axes one after the other.
    void toolFrame()
    {
        const auto down = frameAxes(180, 0, 0);
        QVERIFY((down.at(2) - QVector3D(0, 0, -1)).length() < 1e-5F);
        const auto turned = frameAxes(90, 0, 90);
        QVERIFY((turned.at(0) - QVector3D(0, 1, 0)).length() < 1e-5F);
        QVERIFY((turned.at(1) - QVector3D(0, 0, 1)).length() < 1e-5F);
    }

    void scaleIsRound()
    {
        QCOMPARE(roundLength(999), 500.0);
        QCOMPARE(roundLength(499), 200.0);
        QCOMPARE(roundLength(100), 100.0);
        QCOMPARE(roundLength(0), 1.0);
        QCOMPARE(roundLength(qQNaN()), 1.0);
    }

private:
    static void *qFetchElement(const char *name)
    {
        return QTest::qData(name, qMetaTypeId<QPointF>());
    }
};

QTEST_APPLESS_MAIN(TestArmCamera)

#include "tst_armcamera.moc"
