#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QWidget>

/** A text that a window shows, with the pixels of width that it needs and has; both 0 where that is
 *  not a matter of width. */
struct ShownText {
    const QWidget *widget;
    QString text;
    int needed;
    int given;
};

/** All texts that can be seen in a window: labels, buttons, headers, cells, tabs, choices, keys. */
QVector<ShownText> shownTexts(const QWidget *window);

/** What is English in the catalogues of a language, with anything for its placeholders. */
QRegularExpression englishOf(const QStringList &catalogues, const QString &language);
