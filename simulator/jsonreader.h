#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

namespace simulator
{

/** The first error of a document, with the path of the member that it is about. */
struct JsonError {
    QString text;

    bool isEmpty() const { return text.isEmpty(); }
    void report(const QString &path, const QString &problem);
};

/**
 * Reads the members of one JSON object and reports what does not fit into a shared error. A member
 * that is missing or wrong reads as the given default. The error outlives the reader.
 */
class JsonReader
{
public:
    /** `path` is "" for the whole document. */
    JsonReader(const QJsonValue &value, const QString &path, JsonError &error);

    /** Reports each member that is not among the names. */
    void allowOnly(const QStringList &names);

    bool has(const QString &name) const { return m_object.contains(name); }
    QString text(const QString &name, const QString &byDefault);
    int integer(const QString &name, int byDefault, int min, int max);
    /** The index of the member's text among the choices. */
    int choice(const QString &name, const QStringList &choices, int byDefault);
    /** As many numbers as `count`, or the default. */
    QVector<double> numbers(const QString &name, int count, const QVector<double> &byDefault);
    QJsonObject object(const QString &name);
    QJsonArray array(const QString &name);
    QJsonValue value(const QString &name) const { return m_object.value(name); }

    void report(const QString &name, const QString &problem);
    QString pathOf(const QString &name) const;

private:
    QJsonObject m_object;
    QString m_path;
    JsonError &m_error;
};

} // namespace simulator
