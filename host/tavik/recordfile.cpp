#include "tavik/recordfile_p.h"

#include "ostrel/jsontext_p.h"
#include "tavik/paths_p.h"

#include <QCoreApplication>
#include <algorithm>

namespace tavik
{

using ostrel::Node;

namespace
{

constexpr qint64 largestFile = qint64(128) * 1024 * 1024;
const QLatin1String supportedVersion("0.2");

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(tavik)
};

bool isText(const Node &node)
{
    return node.kind() == Node::Kind::String;
}

bool isNumber(const Node &node)
{
    return node.kind() >= Node::Kind::Int && node.kind() <= Node::Kind::Double;
}

bool isBool(const Node &node)
{
    return node.kind() == Node::Kind::Bool;
}

bool isObject(const Node &node)
{
    return node.kind() == Node::Kind::Object;
}

bool isNumberList(const Node &node)
{
    return node.isList() && std::all_of(node.begin(), node.end(), isNumber);
}

/** Numbers, at any depth, by name. */
bool isNumberTree(const Node &node)
{
    return isObject(node) && std::all_of(node.begin(), node.end(), [](const Node &child) {
               return isNumber(child) || isNumberTree(child);
           });
}

bool isTextMap(const Node &node)
{
    return isObject(node) && std::all_of(node.begin(), node.end(), isText);
}

struct Field {
    const char *name;
    bool (*check)(const Node &node);
};

constexpr Field pointFields[] = {{"name", isText}, {"property", isText}, {"pers", isText},
                                 {"func", isText}, {"task", isText},     {"description", isText},
                                 {"id", isNumber}, {"d", isNumberList},  {"value", isObject}};
constexpr Field elementFields[]
    = {{"inner_pos", isNumberList}, {"extern_pos", isNumberList}, {"external_joint", isNumberList},
       {"pose", isNumberTree},      {"conf", isNumberTree},       {"coord", isTextMap}};
constexpr Field variableFields[] = {{"name", isText}, {"type", isText}, {"description", isText},
                                    {"pers", isBool}, {"id", isNumber}, {"value", isObject}};

const Node *member(const Node &node, const char *name)
{
    return isObject(node) ? node.descend(QString::fromLatin1(name)) : nullptr;
}

/** A member that is missing, or null, has its default. */
template <std::size_t count>
bool checkFields(const Field (&fields)[count], const Node &node, QString *problem)
{
    for (const Field &field : fields) {
        const Node *found = member(node, field.name);
        if (!found || found->kind() == Node::Kind::Empty || field.check(*found))
            continue;
        *problem = Texts::tr("its \"%1\" is of a wrong kind").arg(QLatin1String(field.name));
        return false;
    }
    return true;
}

bool checkElement(const Node &element, QString *problem)
{
    if (element.kind() == Node::Kind::Empty)
        return true;
    *problem = Texts::tr("an element is no object");
    return isObject(element) && checkFields(elementFields, element, problem);
}

bool checkPoint(const Node &point, QString *problem)
{
    if (!checkFields(pointFields, point, problem))
        return false;
    const Node *value = member(point, "value");
    if (!value)
        return true;
    return std::all_of(value->begin(), value->end(), [problem](const Node &element) {
        const QString name = ostrel::NameTable::instance().text(element.name());
        return !name.startsWith(QLatin1Char('[')) || checkElement(element, problem);
    });
}

bool checkVariable(const Node &variable, QString *problem)
{
    return checkFields(variableFields, variable, problem);
}

bool checkRecords(const RecordFile &file, const Node &records, QString *problem)
{
    for (int i = 0; i < records.childCount(); ++i) {
        const Node &record = *records.childAt(i);
        QString fault = Texts::tr("it is no object");
        if (isObject(record) && file.checkRecord(record, &fault))
            continue;
        *problem = Texts::tr("record %1 of \"%2\": %3")
                       .arg(QString::number(i + 1), QLatin1String(file.member), fault);
        return false;
    }
    return true;
}

/** The file's list, or null with the reason. */
Node *findRecords(const RecordFile &file, const Node &document, QString *problem)
{
    const Node *version = member(document, "version");
    const Node *records = member(document, file.member);
    if (!isObject(document))
        *problem = Texts::tr("it holds no JSON object");
    else if (!version || !isText(*version))
        *problem = Texts::tr("it has no version");
    else if (version->string() != supportedVersion)
        *problem = Texts::tr("its version is \"%1\", this panel reads \"%2\"")
                       .arg(version->string().left(20), supportedVersion);
    else if (!records || !records->isList())
        *problem = Texts::tr("it has no list \"%1\"").arg(QLatin1String(file.member));
    else if (checkRecords(file, *records, problem))
        return const_cast<Node *>(records);
    return nullptr;
}

} // namespace

const RecordFile &pointFile()
{
    static const RecordFile file {"point.json", "points", "tavik.project.point._list", checkPoint};
    return file;
}

const RecordFile &variableFile()
{
    static const RecordFile file {"var.json", "variables", "tavik.project.var._list",
                                  checkVariable};
    return file;
}

ReadResult readRecords(const RecordFile &file, const QString &path, Node *records, QString *problem)
{
    QByteArray text;
    if (!readPlainFile(path, largestFile, &text, problem))
        return problem->isEmpty() ? ReadResult::Missing : ReadResult::Damaged;
    Node document;
    QString error;
    if (!ostrel::parseJsonText(text, &document, &error)) {
        *problem = Texts::tr("it is no JSON (%1)").arg(error);
        return ReadResult::Damaged;
    }
    Node *found = findRecords(file, document, problem);
    if (!found)
        return ReadResult::Damaged;
    records->takeContent(*found);
    return ReadResult::Read;
}

} // namespace tavik
