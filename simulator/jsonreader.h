#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QSet>
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
    /** A text that serves as a name: 1 to 255 characters, no control characters; it has to be
     * there. */
    QString name(const QString &member);
    QStringList texts(const QString &name);
    bool flag(const QString &name, bool byDefault);
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

/** "array[3]" */
QString elementPath(const QString &array, int index);

/** The elements of an array as read(value, path, error) reads them. */
template <typename Element>
QVector<Element> readArray(const QJsonArray &array, const QString &path, JsonError &error,
                           Element (*read)(const QJsonValue &, const QString &, JsonError &))
{
    QVector<Element> elements;
    for (const QJsonValue &value : array)
        elements += read(value, elementPath(path, elements.size()), error);
    return elements;
}

/** The same for a member whose elements have a `name` of their own each. */
template <typename Element>
QVector<Element> readNamed(JsonReader &reader, const QString &member, JsonError &error,
                           Element (*read)(const QJsonValue &, const QString &, JsonError &))
{
    const QVector<Element> elements
        = readArray(reader.array(member), reader.pathOf(member), error, read);
    QSet<QString> names;
    for (int i = 0; i < elements.size(); ++i) {
        const QString name = elements.at(i).name;
        if (names.contains(name))
            error.report(elementPath(reader.pathOf(member), i),
                         QStringLiteral("'%1' is there twice").arg(name));
        names.insert(name);
    }
    return elements;
}

} // namespace simulator
