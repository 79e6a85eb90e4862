#include "jsonreader.h"

#include "numbers.h"

#include <QJsonArray>
#include <algorithm>
#include <cmath>

namespace simulator
{

namespace
{
constexpr int kMaxName = 255;

QString typeOf(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return QStringLiteral("a truth value");
    case QJsonValue::Double:
        return QStringLiteral("a number");
    case QJsonValue::String:
        return QStringLiteral("a text");
    case QJsonValue::Array:
        return QStringLiteral("an array");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    default:
        return QStringLiteral("null");
    }
}

QString expected(const QString &what, const QJsonValue &found)
{
    return QStringLiteral("expected %1, found %2").arg(what, typeOf(found));
}
} // namespace

void JsonError::report(const QString &path, const QString &problem)
{
    if (isEmpty())
        text = path.isEmpty() ? problem : path + QStringLiteral(": ") + problem;
}

JsonReader::JsonReader(const QJsonValue &value, const QString &path, JsonError &error)
    : m_object(value.toObject())
    , m_path(path)
    , m_error(error)
{
    if (!value.isObject())
        m_error.report(path, expected(QStringLiteral("an object"), value));
}

void JsonReader::allowOnly(const QStringList &names)
{
    for (const QString &name : m_object.keys()) {
        if (!names.contains(name))
            report(
                name,
                QStringLiteral("unknown member (known: %1)").arg(names.join(QStringLiteral(", "))));
    }
}

QString JsonReader::text(const QString &name, const QString &byDefault)
{
    if (!has(name))
        return byDefault;
    if (!value(name).isString())
        report(name, expected(QStringLiteral("a text"), value(name)));
    return value(name).toString(byDefault);
}

QString JsonReader::name(const QString &member)
{
    const QString name = text(member, QString());
    const bool isPlain = std::none_of(name.cbegin(), name.cend(),
                                      [](QChar c) { return c.category() == QChar::Other_Control; });
    if (name.isEmpty() || name.size() > kMaxName || !isPlain)
        report(member, QStringLiteral("expected a name of 1 to %1 characters").arg(kMaxName));
    return name;
}

QStringList JsonReader::texts(const QString &name)
{
    QStringList texts;
    for (const QJsonValue &text : array(name)) {
        if (!text.isString())
            m_error.report(elementPath(pathOf(name), texts.size()),
                           expected(QStringLiteral("a text"), text));
        texts += text.toString();
    }
    return texts;
}

bool JsonReader::flag(const QString &name, bool byDefault)
{
    if (has(name) && !value(name).isBool())
        report(name, expected(QStringLiteral("a truth value"), value(name)));
    return value(name).toBool(byDefault);
}

int JsonReader::integer(const QString &name, int byDefault, int min, int max)
{
    if (!has(name))
        return byDefault;
    const QJsonValue found = value(name);
    const double number = found.toDouble();
    if (found.isDouble() && number >= min && number <= max && std::trunc(number) == number)
        return static_cast<int>(number);
    const QString range = QStringLiteral("an integer from %1 to %2").arg(min).arg(max);
    if (found.isDouble())
        report(name, QStringLiteral("expected %1, found %2").arg(range).arg(number));
    else
        report(name, expected(range, found));
    return byDefault;
}

int JsonReader::choice(const QString &name, const QStringList &choices, int byDefault)
{
    if (!has(name))
        return byDefault;
    const QString found = text(name, QString());
    const int index = choices.indexOf(found);
    if (index >= 0)
        return index;
    report(name,
           QStringLiteral("expected one of %1, found '%2'")
               .arg(choices.join(QStringLiteral(", ")), found));
    return byDefault;
}

QVector<double> JsonReader::numbers(const QString &name, int count,
                                    const QVector<double> &byDefault)
{
    if (!has(name))
        return byDefault;
    if (const auto numbers = numbersOf(value(name), count))
        return *numbers;
    report(name, QStringLiteral("expected an array of %1 numbers").arg(count));
    return byDefault;
}

QJsonObject JsonReader::object(const QString &name)
{
    if (has(name) && !value(name).isObject())
        report(name, expected(QStringLiteral("an object"), value(name)));
    return value(name).toObject();
}

QJsonArray JsonReader::array(const QString &name)
{
    if (has(name) && !value(name).isArray())
        report(name, expected(QStringLiteral("an array"), value(name)));
    return value(name).toArray();
}

void JsonReader::report(const QString &name, const QString &problem)
{
    m_error.report(pathOf(name), problem);
}

QString JsonReader::pathOf(const QString &name) const
{
    return m_path.isEmpty() ? name : m_path + QLatin1Char('.') + name;
}

QString elementPath(const QString &array, int index)
{
    return QStringLiteral("%1[%2]").arg(array, QString::number(index));
}

} // namespace simulator
