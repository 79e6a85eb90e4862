#include "variablelist.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <cmath>
#include <zeplet/interface/interfacemanager.h>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(variables)
};

Variable variableOf(const QJsonObject &record)
{
    return {record[QLatin1String("name")].toString(),
            record[QLatin1String("description")].toString(),
            record[QLatin1String("type")].toString(),
            record[QLatin1String("value")][QLatin1String("[0][0][0]")],
            record[QLatin1String("pers")].toBool()};
}

} // namespace

VariableKind Variable::kind() const
{
    if (type == QLatin1String("int") || type == QLatin1String("qlonglong")
        || type == QLatin1String("uint") || type == QLatin1String("qulonglong"))
        return VariableKind::Integer;
    if (type == QLatin1String("double") || type == QLatin1String("float"))
        return VariableKind::Number;
    if (type == QLatin1String("QString"))
        return VariableKind::Text;
    if (type == QLatin1String("bool"))
        return VariableKind::Flag;
    if (type == QLatin1String("socketserver") || type == QLatin1String("socketconn")
        || type == QLatin1String("serials"))
        return VariableKind::Connection;
    return VariableKind::Other;
}

QVector<Variable> readVariables()
{
    const QJsonArray records = zeplet::zepletInterface()
                                   ->getNodeData(QStringLiteral("tavik.project.var._list"))
                                   .toArray();
    QVector<Variable> variables;
    variables.reserve(records.size());
    for (const QJsonValue &record : records)
        variables.append(variableOf(record.toObject()));
    return variables;
}

Variable readVariable(const QString &name)
{
    return variableOf(zeplet::zepletInterface()->getVarObjDataByName(name));
}

QString kindName(VariableKind kind)
{
    switch (kind) {
    case VariableKind::Integer:
        return Texts::tr("Whole number");
    case VariableKind::Number:
        return Texts::tr("Number");
    case VariableKind::Text:
        return Texts::tr("Text");
    case VariableKind::Flag:
        return Texts::tr("Flag");
    case VariableKind::Connection:
        return Texts::tr("Connection");
    case VariableKind::Other:
        break;
    }
    return Texts::tr("Other");
}

bool canBeChanged(VariableKind kind)
{
    return kind != VariableKind::Connection && kind != VariableKind::Other;
}

QString valueText(const QJsonValue &value)
{
    if (value.isBool())
        return value.toBool() ? Texts::tr("true") : Texts::tr("false");
    if (value.isString())
        return value.toString().simplified();
    if (value.isDouble())
        return QLocale::c().toString(value.toDouble(), 'g', 15);
    if (value.isArray())
        return QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact));
    if (value.isObject())
        return QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
    return QStringLiteral("–");
}

QVariant valueFrom(const QString &written, VariableKind kind, QString *refusal)
{
    bool fits = true;
    QVariant value = written;
    if (kind == VariableKind::Integer) {
        value = QLocale::c().toInt(written.trimmed(), &fits);
        *refusal = Texts::tr("A whole number is needed, from -2147483648 to 2147483647.");
    } else if (kind == VariableKind::Number) {
        const double number = QLocale::c().toDouble(written.trimmed(), &fits);
        value = number;
        fits = fits && std::isfinite(number);
        *refusal = Texts::tr("A number is needed, with a point before its decimals: 12.5");
    } else if (kind == VariableKind::Flag) {
        value = written == Texts::tr("true");
    }
    if (!fits)
        return QVariant();
    refusal->clear();
    return value;
}
