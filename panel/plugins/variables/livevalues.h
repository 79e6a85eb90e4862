#pragma once

#include <QObject>
#include <QStringList>

/**
 * Asks the controller to report variables, and gives them back to whom had them before. GUI thread.
 */
class LiveValues : public QObject
{
    Q_OBJECT

public:
    LiveValues(const QString &pluginName, QObject *parent);
    ~LiveValues() override;

    /** From now on these are reported, beside those that others asked for. */
    void select(const QStringList &names);
    /** Nobody looks any more. */
    void release();

    /** Whether the controller can report values at all. */
    bool isSupported() const { return m_supported; }
    /** What the controller reported last; null where it did not. */
    QString value(const QString &name) const;

Q_SIGNALS:
    void changed();

private:
    QString m_pluginName;
    QString m_subscription;
    QStringList m_before; ///< what others had selected
    QStringList m_selected;
    bool m_supported = true;
    bool m_active = false;
};
