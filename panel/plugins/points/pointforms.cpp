#include "pointforms.h"

#include "kit/form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <brisa/thememanager.h>
#include <cmath>
#include <zeplet/interface/interfacemanager.h>

using zeplet::zepletInterface;
namespace metrics = brisa::metrics;

namespace pointforms
{

namespace
{

constexpr int MostIndex = 9999;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(points)
};

/** Fields side by side, each below its caption. */
class Fields
{
public:
    explicit Fields(int columns)
        : m_columns(columns)
        , m_box(new QWidget)
        , m_grid(new QGridLayout(m_box))
    {
        m_grid->setContentsMargins(0, 0, 0, 0);
        m_grid->setHorizontalSpacing(metrics::Grid);
        m_grid->setVerticalSpacing(metrics::Grid / 2);
        for (int i = 0; i < columns; ++i)
            m_grid->setColumnStretch(i, 1);
    }

    void add(const QString &caption, QWidget *field)
    {
        auto *const label = new QLabel(caption);
        label->setProperty("role", QStringLiteral("caption"));
        const int row = 2 * (m_count / m_columns);
        m_grid->addWidget(label, row, m_count % m_columns);
        m_grid->addWidget(field, row + 1, m_count % m_columns);
        ++m_count;
    }

    QWidget *box() const { return m_box; }

private:
    int m_columns;
    int m_count = 0;
    QWidget *m_box;
    QGridLayout *m_grid;
};

QComboBox *makeChoice(const char *objectName, const QStringList &choices, const QString &chosen)
{
    auto *const box = new QComboBox;
    box->setObjectName(QLatin1String(objectName));
    box->addItems(choices);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(8);
    box->setCurrentIndex(qMax(0, choices.indexOf(chosen)));
    return box;
}

/** What a teaching is made of; the fields belong to the form. */
struct TeachingFields {
    QComboBox *kind;
    QComboBox *tool;
    QComboBox *wobj;

    Teaching read() const
    {
        return {kind->currentIndex() == 1, tool->currentText(), wobj->currentText()};
    }
};

QStringList withoutDoubles(QStringList names, const QString &needed)
{
    names.removeDuplicates();
    if (names.isEmpty())
        names.append(needed);
    return names;
}

TeachingFields addTeaching(kit::Form *form, bool joint, const QString &tool, const QString &wobj)
{
    const TeachingFields fields {
        makeChoice("teachKind",
                   {Texts::tr("Cartesian: the tool's pose"), Texts::tr("Joint: each axis' angle")},
                   QString()),
        makeChoice("teachTool", withoutDoubles(zepletInterface()->getToolList(), tool), tool),
        makeChoice("teachWobj", withoutDoubles(zepletInterface()->getWobjList(), wobj), wobj)};
    fields.kind->setCurrentIndex(joint ? 1 : 0);
    form->addField(Texts::tr("Kind"), fields.kind);
    Fields frames(2);
    frames.add(Texts::tr("Tool"), fields.tool);
    frames.add(Texts::tr("Work object"), fields.wobj);
    form->addField(QString(), frames.box());
    return fields;
}

QLineEdit *makeNumber(kit::Form *form, const QString &objectName, const QString &value)
{
    auto *const edit = new QLineEdit(value);
    edit->setObjectName(objectName);
    edit->setInputMethodHints(Qt::ImhFormattedNumbersOnly);
    QObject::connect(edit, &QLineEdit::textChanged, form, &kit::Form::check);
    return edit;
}

/** Not finite where the text is no number. */
double numberIn(const QLineEdit *edit)
{
    bool isNumber = false;
    const double number = QLocale::c().toDouble(edit->text().trimmed(), &isNumber);
    return isNumber ? number : qQNaN();
}

QStringList valueNames(bool joint)
{
    QStringList names;
    if (joint) {
        for (int i = 1; i <= 7; ++i)
            names.append(QStringLiteral("J%1 °").arg(i));
        return names;
    }
    return {"X mm", "Y mm", "Z mm", "A °", "B °", "C °"};
}

QString limitRefusal(const QVector<QLineEdit *> &edits,
                     const QVector<QPair<double, double>> &limits)
{
    for (int i = 0; i < qMin(edits.size(), limits.size()); ++i) {
        const double value = numberIn(edits.at(i));
        if (value < limits.at(i).first || value > limits.at(i).second)
            return Texts::tr("Axis J%1 goes from %2° to %3°: choose an angle between them.")
                .arg(QString::number(i + 1), QString::number(limits.at(i).first),
                     QString::number(limits.at(i).second));
    }
    return QString();
}

} // namespace

void askForNew(kit::Page *page, const QVector<Point> &points,
               std::function<void(const QString &name, bool persistent, const Teaching &)> accepted)
{
    auto *const form = new kit::Form(page, Texts::tr("Teach a new point"), Texts::tr("Teach"));
    const QLineEdit *const name = form->addText(Texts::tr("Name"), QStringLiteral("pointName"));
    const TeachingFields fields = addTeaching(form, false, zepletInterface()->getCurTool(),
                                              zepletInterface()->getCurWobj());
    const QCheckBox *const persistent = form->addCheck(
        Texts::tr("Persistent: programs keep its changes"), QStringLiteral("pointPersistent"));
    form->setValidation([=] { return pointedits::nameRefusal(name->text(), points); });
    form->onAccepted(
        [=] { accepted(name->text().trimmed(), persistent->isChecked(), fields.read()); });
    form->open();
}

void askToTeach(kit::Page *page, const Point &point, const Element &element,
                std::function<void(const Teaching &)> accepted)
{
    const bool isArray = point.elements.size() > 1;
    auto *const form = new kit::Form(
        page,
        Texts::tr("Teach \"%1\"").arg(isArray ? point.name + ' ' + element.index : point.name),
        Texts::tr("Teach"));
    const auto or_ = [](const QString &own, const QString &selected) {
        return own.isEmpty() ? selected : own;
    };
    form->Overlay::addParagraph(
        Texts::tr("Its old position is replaced by the one where the robot is now."));
    const TeachingFields fields
        = addTeaching(form, point.joint, or_(element.tool, zepletInterface()->getCurTool()),
                      or_(element.wobj, zepletInterface()->getCurWobj()));
    fields.kind->setEnabled(!isArray);
    form->onAccepted([=] { accepted(fields.read()); });
    form->open();
}

void askForValues(kit::Page *page, const Point &point, const Element &element,
                  const QVector<QPair<double, double>> &limits,
                  std::function<void(const QVector<double> &)> accepted)
{
    const bool isArray = point.elements.size() > 1;
    auto *const form = new kit::Form(
        page,
        Texts::tr("Values of \"%1\"").arg(isArray ? point.name + ' ' + element.index : point.name),
        Texts::tr("Save"));
    const QStringList names = valueNames(point.joint);
    const QVector<double> values = point.joint ? element.joints : element.pose;
    Fields grid(point.joint ? 4 : 3);
    QVector<QLineEdit *> edits;
    for (int i = 0; i < names.size(); ++i) {
        edits.append(makeNumber(form, QStringLiteral("value%1").arg(i),
                                QLocale::c().toString(values.value(i), 'g', 10)));
        grid.add(names.at(i), edits.last());
    }
    form->addField(QString(), grid.box());
    const auto checked = point.joint ? limits : QVector<QPair<double, double>>();
    form->setValidation([=] {
        for (int i = 0; i < edits.size(); ++i) {
            if (!std::isfinite(numberIn(edits.at(i))))
                return Texts::tr("%1: a number is needed, with a point before its decimals: 12.5")
                    .arg(names.at(i).section(' ', 0, 0));
        }
        return limitRefusal(edits, checked);
    });
    form->onAccepted([=] {
        QVector<double> read;
        for (const QLineEdit *edit : edits)
            read.append(numberIn(edit));
        accepted(read);
    });
    form->open();
}

void askForIndex(kit::Page *page, const Point &point,
                 std::function<void(const QString &index)> accepted)
{
    auto *const form = new kit::Form(page, Texts::tr("Add an element to \"%1\"").arg(point.name),
                                     Texts::tr("Add"));
    const QVector<int> next = nextIndex(point);
    Fields grid(3);
    QVector<QLineEdit *> edits;
    const QStringList captions {Texts::tr("First index"), Texts::tr("Second index"),
                                Texts::tr("Third index")};
    for (int i = 0; i < captions.size(); ++i) {
        edits.append(
            makeNumber(form, QStringLiteral("index%1").arg(i), QString::number(next.at(i))));
        grid.add(captions.at(i), edits.last());
    }
    form->addField(QString(), grid.box());
    const auto index = [edits] {
        QVector<int> numbers;
        for (const QLineEdit *edit : edits)
            numbers.append(edit->text().toInt());
        return indexText(numbers);
    };
    form->setValidation([=] {
        for (const QLineEdit *edit : edits) {
            bool isNumber = false;
            const int number = edit->text().toInt(&isNumber);
            if (!isNumber || number < 0 || number > MostIndex)
                return Texts::tr("An index is a whole number from 0 to 9999.");
        }
        return point.element(index())
            ? Texts::tr("The element %1 is there already: choose another index.").arg(index())
            : QString();
    });
    form->onAccepted([=] { accepted(index()); });
    form->open();
}

} // namespace pointforms
