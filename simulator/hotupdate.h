#pragma once

#include "commandregistry.h"
#include "variables.h"

#include <QRegularExpression>
#include <optional>

namespace simulator
{

/** By which updates of points and variables are answered. */
struct HotUpdateRule {
    QString operation; ///< "": any
    std::optional<QRegularExpression> name; ///< nothing: any
    QString type; ///< "": any
    int reply = 0; ///< 0: accepted
    QString reason; ///< not empty: an error with this reason instead of the reply
};

/** The hub's command `project.variable`: takes what changes in the points and variables of the open
 *  project while it is loaded, and remembers it. */
class HotUpdate
{
public:
    static constexpr int kMaxPoints = 100000;

    HotUpdate(CommandRegistry &hubKeys, const QVector<HotUpdateRule> &rules, Variables &variables);

    static QStringList operations();

    /** The points that it was told of, as they came last, by their names. */
    const QJsonObject &points() const { return m_points; }
    void forgetPoints() { m_points = {}; }

private:
    Reply update(const QJsonValue &arguments);
    const HotUpdateRule *ruleFor(const QString &operation, const QJsonArray &entries) const;
    Refusal apply(const QString &operation, const QJsonObject &entry);
    Refusal applyToPoint(const QString &operation, const QString &name, const QJsonObject &entry);
    Refusal applyToVariable(const QString &operation, const QString &name,
                            const QJsonObject &entry);

    QVector<HotUpdateRule> m_rules;
    Variables &m_variables;
    QJsonObject m_points;
};

} // namespace simulator
