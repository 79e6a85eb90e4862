#pragma once

#include <zeplet/export.h>

#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>

namespace zeplet
{

class RLContentBase;

/**
 * Enters a plugin's instructions into the record of the host's program editor. It holds nothing:
 * any number of them write into the one record, where entries stay for the life of the process.
 * Nothing is checked; types are plain words, such as "MoveX", and case matters. A later text,
 * pattern or widget of a type replaces the earlier one, lists keep what is entered twice. GUI
 * thread, typically in the plugin's init().
 *
 * A maker of content returns a new widget, which the editor owns from then on, or null for an
 * instruction without anything to enter. An empty function throws std::bad_function_call when the
 * editor calls it. The editor tells the operator what a maker throws.
 */
class ZEPLET_EXPORT RLManager : public QObject
{
    Q_OBJECT

public:
    /** Makes the content of a widget. */
    using MakeContent = std::function<RLContentBase *()>;

    /** Belongs to the parent, if there is one; what it entered stays without it. */
    explicit RLManager(QObject *parent = nullptr);
    ~RLManager() override;

    /** Adds an instruction type. Where several patterns fit a line, the first type's wins. */
    void createTypeKey(const QString &type);
    /** Adds a group: its key and its title. */
    void createGroups(const QString &key, const QString &title);
    /** Puts types into the group of that key. */
    void createTypeToGroup(const QString &key, const QStringList &types);
    /** Puts one type into the group of that key. */
    void createTypeToGroup(const QString &key, const QString &type);

    /** What the instruction does, for the operator. */
    void createInsDescribe(const QString &type, const QString &text);
    /** What a new instruction reads. */
    void createInsDefault(const QString &type, const QString &text);
    /** The regular expression, in the syntax of QRegularExpression, of the instruction's lines. */
    void createPattern(const QString &type, const QString &pattern);
    /** The instruction with what has to be filled in. */
    void createSkeleton(const QString &type, const QString &skeleton);

    /** The widget with which the instruction is inserted. */
    void createInsertWidget(const QString &type, MakeContent make);
    /** The widget with which the properties of a line are edited. */
    void createPropertyWidget(const QString &type, MakeContent make);

    /**
     * Enters a whole instruction: the type, its description, both widgets, its place in the group,
     * the type as skeleton, an empty default, and a pattern for lines that hold the type alone,
     * with white space around it and a comment behind it as they please.
     */
    void createData(const QString &group, const QString &type, const QString &describe,
                    MakeContent makeInsert, MakeContent makeProperty);
};

} // namespace zeplet
