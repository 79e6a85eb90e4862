#pragma once

#include <QString>
#include <QStringList>

/** Why an operation on a project was refused and what to do next; empty for the code 0. */
namespace refusals
{

QString ofCreate(int code, const QString &name);
QString ofOpen(int code, const QString &name);
QString ofRemove(int code, const QString &name);

/** What is wrong with a name that someone is typing; empty where nothing is known. */
QString ofName(const QString &name, const QStringList &taken);

} // namespace refusals
