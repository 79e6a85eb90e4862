#include "faults.h"

#include <algorithm>
#include <array>
#include <utility>

namespace simulator
{

namespace
{
using Entry = std::pair<FaultKind, const char *>;
constexpr std::array kNames {
    Entry {FaultKind::NoAnswer, "no_answer"},
    Entry {FaultKind::LateAnswer, "late_answer"},
    Entry {FaultKind::WrongAnswer, "wrong_answer"},
    Entry {FaultKind::RepeatedAnswer, "repeated_answer"},
    Entry {FaultKind::UnaskedAnswer, "unasked_answer"},
    Entry {FaultKind::Refused, "refusal"},
    Entry {FaultKind::DroppedLink, "dropped_link"},
    Entry {FaultKind::MalformedFrame, "malformed_frame"},
    Entry {FaultKind::ControllerDown, "controller_down"},
    Entry {FaultKind::HubDown, "hub_down"},
    Entry {FaultKind::FilesDown, "files_down"},
    Entry {FaultKind::Silent, "silent"},
};

auto isOf(FaultKind kind)
{
    return [kind](const Fault &fault) { return fault.kind == kind; };
}
} // namespace

Faults::Faults(QObject *parent)
    : QObject(parent)
{
}

std::optional<FaultKind> Faults::kindOf(const QString &name)
{
    for (const auto &[kind, text] : kNames) {
        if (name == QLatin1String(text))
            return kind;
    }
    return std::nullopt;
}

QString Faults::nameOf(FaultKind kind)
{
    for (const auto &[known, text] : kNames) {
        if (known == kind)
            return QLatin1String(text);
    }
    return {};
}

QStringList Faults::names()
{
    QStringList names;
    for (const auto &entry : kNames)
        names += QLatin1String(entry.second);
    return names;
}

QString Faults::unknownName(const QString &name)
{
    return QStringLiteral("unknown fault '%1' (known: %2)")
        .arg(name, names().join(QStringLiteral(", ")));
}

bool Faults::isCondition(FaultKind kind)
{
    return kind == FaultKind::ControllerDown || kind == FaultKind::HubDown
        || kind == FaultKind::FilesDown || kind == FaultKind::Silent;
}

Fault Faults::withDefaults(FaultKind kind)
{
    Fault fault;
    fault.kind = kind;
    fault.ms = kind == FaultKind::LateAnswer ? kDefaultDelay : 0;
    fault.answer = QStringLiteral("wrong answer");
    return fault;
}

void Faults::add(const Fault &fault)
{
    if (!isCondition(fault.kind)) {
        m_faults += fault;
        return;
    }
    removeCondition(fault.kind);
    m_faults += fault;
    if (fault.ms > 0)
        endAfter(fault.kind, fault.ms);
    emit conditionsChanged();
}

void Faults::endAfter(FaultKind condition, int ms)
{
    auto timer = std::make_unique<QTimer>();
    timer->setSingleShot(true);
    connect(timer.get(), &QTimer::timeout, this, [this, condition] {
        m_faults.erase(std::remove_if(m_faults.begin(), m_faults.end(), isOf(condition)),
                       m_faults.end());
        emit conditionsChanged();
    });
    timer->start(ms);
    m_timers[condition] = std::move(timer);
}

void Faults::end(FaultKind condition)
{
    removeCondition(condition);
    emit conditionsChanged();
}

void Faults::clear()
{
    m_faults.clear();
    m_timers.clear();
    emit conditionsChanged();
}

std::optional<Fault> Faults::take(const QStringList &names)
{
    const auto meets = [&names](const Fault &fault) {
        return !isCondition(fault.kind)
            && (fault.command.isEmpty() || names.contains(fault.command));
    };
    const auto found = std::find_if(m_faults.begin(), m_faults.end(), meets);
    if (found == m_faults.end())
        return std::nullopt;
    const Fault fault = *found;
    if (fault.times == 1)
        m_faults.erase(found);
    else if (fault.times > 1)
        --found->times;
    return fault;
}

bool Faults::isActive(FaultKind condition) const
{
    return std::any_of(m_faults.cbegin(), m_faults.cend(), isOf(condition));
}

void Faults::removeCondition(FaultKind kind)
{
    m_timers.erase(kind);
    m_faults.erase(std::remove_if(m_faults.begin(), m_faults.end(), isOf(kind)), m_faults.end());
}

} // namespace simulator
