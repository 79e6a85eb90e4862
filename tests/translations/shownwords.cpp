#include "shownwords.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTableView>
#include <QTextDocumentFragment>
#include <QXmlStreamReader>
#include <brisa/elidedlabel.h>
#include <brisa/logbanner.h>
#include <brisa/thememanager.h>

namespace
{

constexpr int CellPadding = 10;
constexpr int MarkPadding = 10;

using Texts = QVector<ShownText>;

QString plainOf(const QString &tip)
{
    return QTextDocumentFragment::fromHtml(tip).toPlainText();
}

int widthOf(const QString &text, const QFont &font)
{
    int width = 0;
    for (const QString &line : text.split('\n'))
        width = qMax(width, QFontMetrics(font).horizontalAdvance(line));
    return width;
}

// Words break between Chinese characters, and nowhere else.
int longestWord(const QString &text, const QFont &font)
{
    static const QRegularExpression between(QStringLiteral("\\s+|(?=\\p{Han})|(?<=\\p{Han})"));
    int width = 0;
    for (const QString &word : text.split(between))
        width = qMax(width, QFontMetrics(font).horizontalAdvance(word));
    return width;
}

void addLabel(const QLabel *label, Texts *texts)
{
    const int needed = label->wordWrap() ? longestWord(label->text(), label->font())
                                         : widthOf(label->text(), label->font());
    texts->append({label, label->text(), needed, label->contentsRect().width()});
}

// A message of the past may be long: it can be opened.
void addElided(const brisa::ElidedLabel *label, Texts *texts)
{
    const bool past = qobject_cast<const brisa::LogBanner *>(label->parentWidget());
    texts->append({label, label->text(), past ? 0 : widthOf(label->text(), label->font()),
                   past ? 0 : label->contentsRect().width()});
}

// Keys and entries of the navigation say in a tool tip what they can't show.
void addButton(const QAbstractButton *button, Texts *texts)
{
    const bool isEntry = button->inherits("qo::kivra::NavigationItem");
    const int margins = 16 + 24 + 12 + 8;
    const bool isCut = button->inherits("qo::kivra::PhysicalKey") && !button->toolTip().isEmpty();
    texts->append({button, button->text(),
                   isEntry ? widthOf(button->text(), button->font()) + margins : int(isCut),
                   isEntry ? button->width() : 0});
}

void addChoices(const QComboBox *box, Texts *texts)
{
    QStyleOptionComboBox option;
    option.initFrom(box);
    const int given
        = box->style()
              ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box)
              .width();
    for (int i = 0; i < box->count(); ++i)
        texts->append({box, box->itemText(i), widthOf(box->itemText(i), box->font()), given});
}

void addTabs(const QTabBar *bar, Texts *texts)
{
    for (int i = 0; i < bar->count(); ++i) {
        const bool outside = bar->tabRect(i).right() > bar->width();
        texts->append({bar, bar->tabText(i), widthOf(bar->tabText(i), bar->font()),
                       outside ? 0 : bar->tabRect(i).width()});
        texts->append({bar, bar->tabToolTip(i), 0, 0});
    }
}

void addCell(const QTableView *table, const QModelIndex &cell, Texts *texts)
{
    using brisa::TextSize;
    using brisa::ThemeManager;
    const int given = table->columnWidth(cell.column()) - 2 * CellPadding;
    const QString text = cell.data().toString();
    texts->append({table, text, widthOf(text, ThemeManager::font(TextSize::Body)), given});
    const QString marks = cell.data(Qt::AccessibleDescriptionRole).toString();
    if (!marks.isEmpty())
        texts->append(
            {table, marks,
             widthOf(marks, ThemeManager::font(TextSize::Caption, true)) + 2 * MarkPadding, given});
    const QString hint = plainOf(cell.data(Qt::ToolTipRole).toString()).section('\n', 1);
    texts->append({table, hint, widthOf(hint, ThemeManager::font(TextSize::Caption)), given});
}

void addTable(const QTableView *table, Texts *texts)
{
    const QAbstractItemModel *const model = table->model();
    for (int column = 0; column < model->columnCount(); ++column) {
        if (table->isColumnHidden(column))
            continue;
        const QHeaderView *const header = table->horizontalHeader();
        const QString text = model->headerData(column, Qt::Horizontal).toString();
        texts->append({header, text,
                       widthOf(text, brisa::ThemeManager::font(brisa::TextSize::Caption)),
                       header->sectionSize(column) - 2 * CellPadding});
        for (int row = 0; row < model->rowCount(); ++row)
            addCell(table, model->index(row, column), texts);
    }
}

// Lists are scrolled sideways.
void addList(const QListView *list, Texts *texts)
{
    const QAbstractItemModel *const model = list->model();
    for (int row = 0; row < model->rowCount(); ++row)
        texts->append({list, model->index(row, 0).data().toString(), 0, 0});
}

void add(const QWidget *widget, Texts *texts)
{
    if (const auto *const label = qobject_cast<const QLabel *>(widget))
        addLabel(label, texts);
    else if (const auto *const elided = qobject_cast<const brisa::ElidedLabel *>(widget))
        addElided(elided, texts);
    else if (const auto *const button = qobject_cast<const QAbstractButton *>(widget))
        addButton(button, texts);
    else if (const auto *const box = qobject_cast<const QComboBox *>(widget))
        addChoices(box, texts);
    else if (const auto *const bar = qobject_cast<const QTabBar *>(widget))
        addTabs(bar, texts);
    else if (const auto *const table = qobject_cast<const QTableView *>(widget))
        addTable(table, texts);
    else if (const auto *const list = qobject_cast<const QListView *>(widget))
        addList(list, texts);
    else if (const auto *const number = qobject_cast<const QSpinBox *>(widget))
        texts->append({number, number->suffix().trimmed(), 0, 0});
    else if (const auto *const note = qobject_cast<const QPlainTextEdit *>(widget))
        texts->append({note, note->placeholderText(), 0, 0});
    else if (const auto *const edit = qobject_cast<const QLineEdit *>(widget))
        texts->append({edit, edit->placeholderText(),
                       widthOf(edit->placeholderText(), edit->font()), edit->width() - 24});
    texts->append({widget, plainOf(widget->toolTip()), 0, 0});
    texts->append({widget, widget->accessibleName(), 0, 0});
}

} // namespace

QVector<ShownText> shownTexts(const QWidget *window)
{
    Texts texts;
    for (const QWidget *const widget : window->findChildren<QWidget *>()) {
        if (widget->isVisible())
            add(widget, &texts);
    }
    texts.append({window, window->windowTitle(), 0, 0});
    return texts;
}

QRegularExpression englishOf(const QStringList &catalogues, const QString &language)
{
    QStringList sources;
    QStringList translations;
    for (const QString &catalogue : catalogues) {
        QFile file(QStringLiteral(ZEPLET_TREE "/%1_%2.ts").arg(catalogue, language));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        for (QXmlStreamReader xml(&file); !xml.atEnd(); xml.readNext()) {
            if (xml.isStartElement() && xml.name() == "source")
                sources += xml.readElementText().trimmed();
            else if (xml.isStartElement() && xml.name() == "translation")
                translations += xml.readElementText().trimmed();
        }
    }
    static const QRegularExpression placeholder(QStringLiteral("%\\d"));
    static const QRegularExpression word(QStringLiteral("[a-z]{3}"));
    QStringList patterns;
    for (const QString &source : qAsConst(sources)) {
        if (translations.contains(source) || !QString(source).remove(placeholder).contains(word))
            continue;
        patterns += QRegularExpression::escape(source).replace(
            QRegularExpression(QStringLiteral("\\\\%\\d")), QStringLiteral(".+"));
    }
    return QRegularExpression("\\A(" + patterns.join('|') + ")\\z");
}
