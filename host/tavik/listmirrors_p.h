#pragma once

#include <QJsonValue>
#include <QObject>
#include <QSet>
#include <QString>
#include <functional>

namespace brisa
{
class ControllerManager;
}

namespace tavik
{

struct Mirrored;

/**
 * Mirrors the controller's signals, registers, frames and projects into the data store: asked for
 * with each connect, and from then on as the controller reports them. Only what differs is set, in
 * the controller's order. What is malformed is logged once and leaves the last values; a member
 * that is missing does, too. GUI thread.
 */
class ListMirrors : public QObject
{
    Q_OBJECT

public:
    /** controller outlives this object. */
    explicit ListMirrors(brisa::ControllerManager *controller, QObject *parent = nullptr);

Q_SIGNALS:
    /** What the controller says of its projects has been read. */
    void overviewRead();

private:
    using Reader = void (ListMirrors::*)(const QJsonValue &content);

    void connectReader(const char *group, const char *path, Reader reader);
    void ask();

    void readIo(const QJsonValue &content);
    void readAllValues(const QJsonValue &content);
    void readChangedValues(const QJsonValue &content);
    void readRegisters(const QJsonValue &content);
    void readOverview(const QJsonValue &content);
    void readFrames(const QJsonValue &content);

    void mirrorSignals(const QJsonValue &catalogue);
    void mirror(const Mirrored &mirrored, const QJsonValue &content);
    /** Whether content may be used; logs once, until it is well-formed again. */
    bool accept(const QString &key, bool wellFormed);

    brisa::ControllerManager *m_controller;
    QSet<QString> m_malformed;
};

} // namespace tavik
