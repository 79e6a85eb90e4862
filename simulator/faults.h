#pragma once

#include <QJsonValue>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QVector>
#include <map>
#include <memory>
#include <optional>

namespace simulator
{

/** What can go wrong on purpose. The first group meets single requests, the second is a condition
 *  of the whole simulator. */
enum class FaultKind {
    NoAnswer,
    LateAnswer,
    WrongAnswer,
    RepeatedAnswer,
    UnaskedAnswer,
    Refused,
    DroppedLink,
    MalformedFrame,

    ControllerDown,
    HubDown,
    FilesDown,
    Silent,
};

struct Fault {
    FaultKind kind = FaultKind::NoAnswer;
    QString command; ///< the command that it meets; empty: every command
    int times = 0; ///< how many requests it meets; 0: until cleared
    int ms = 0; ///< late answer: the delay; a condition: how long it lasts (0: until cleared)
    QJsonValue answer; ///< wrong answer: the result that is sent
};

/** The faults that are in force. Lives on the simulator's thread. */
class Faults : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMaxMilliseconds = 600000;
    static constexpr int kMaxTimes = 1000000;
    static constexpr int kDefaultDelay = 1000;

    explicit Faults(QObject *parent = nullptr);

    /** Nothing for a name that is no fault. */
    static std::optional<FaultKind> kindOf(const QString &name);
    static QString nameOf(FaultKind kind);
    static QStringList names();
    /** "unknown fault 'x' (known: ...)" */
    static QString unknownName(const QString &name);
    /** Whether the kind is a condition of the whole simulator instead of meeting single requests.
     */
    static bool isCondition(FaultKind kind);

    /** A fault of this kind that meets every command until cleared. */
    static Fault withDefaults(FaultKind kind);

    /** Adds a fault; a condition that is in force already gets the new one's duration. */
    void add(const Fault &fault);
    /** Ends a condition before its time. */
    void end(FaultKind condition);
    void clear();
    /** The fault that meets a request known under these names, in the order in which they were
     *  added. Uses up one of its times. */
    std::optional<Fault> take(const QStringList &names);
    bool isActive(FaultKind condition) const;
    const QVector<Fault> &active() const { return m_faults; }

signals:
    /** A condition came into force or ended. */
    void conditionsChanged();

private:
    void endAfter(FaultKind condition, int ms);
    void removeCondition(FaultKind kind);

    QVector<Fault> m_faults;
    std::map<FaultKind, std::unique_ptr<QTimer>> m_timers;
};

} // namespace simulator
