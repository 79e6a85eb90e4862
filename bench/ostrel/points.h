#pragma once

#include <QByteArray>
#include <QJsonArray>

/** Ten thousand point records of about sixty numbers each, as a project has them. */
const QJsonArray &pointRecords();

/** The same as indented file text. */
const QByteArray &pointText();

/** How many values, lists and objects a document consists of. */
int countNodes(const QJsonValue &value);
