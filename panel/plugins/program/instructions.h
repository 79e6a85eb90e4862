#pragma once

#include <QObject>
#include <QRegularExpression>
#include <QStringList>
#include <QVector>
#include <brisa/rlmanager.h>

/** The instructions that plugins brought, as the program editor uses them. GUI thread. */
class Instructions : public QObject
{
    Q_OBJECT

public:
    struct Group {
        QString title;
        QStringList types;
    };

    explicit Instructions(QObject *parent = nullptr);

    /** Reads the record again; false where it is as it was. */
    bool reload();

    /** Groups in the order in which they were made, then those that only have types, then what is
     *  in none. */
    QVector<Group> groups() const;
    QString description(const QString &type) const;
    /** What a new instruction of that type reads where no widget says it; may be empty. */
    QString text(const QString &type) const;
    /** The makers; null where the type has none. */
    const brisa::RlManager::WidgetMaker *insertWidget(const QString &type) const;
    const brisa::RlManager::WidgetMaker *propertyWidget(const QString &type) const;

    /** The type of a line: that of the first pattern, in the order of the types, that fits it.
     *  Empty: none does. A pattern that takes too long on a line is left out from then on. */
    QString typeOf(const QString &line);
    /** What is wrong with patterns; a sentence, or nothing. */
    QString problem() const;

Q_SIGNALS:
    /** A pattern has been left out: what was recognised may look different now. */
    void patternFailed();

private:
    struct Pattern {
        QString type;
        QRegularExpression expression;
        QString fault; ///< not empty: it is not used
    };

    QStringList types() const;
    QString firstFit(const QString &line);

    QStringList m_types;
    QHash<QString, QString> m_sources;
    QVector<Pattern> m_patterns;
    QHash<QString, QString> m_seen; ///< type by line
};
