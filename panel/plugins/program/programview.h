#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <QStringList>
#include <brisa/glyph.h>

class Instructions;

/** The lines of a program with what is known of them: Qt::UserRole is a line's type, the tool tip
 *  its text, as far as a line may be long. */
class ProgramModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit ProgramModel(Instructions *instructions, QObject *parent = nullptr);

    void setLines(const QStringList &lines);
    /** What the types of lines are has changed. */
    void recognise();
    QString line(int row) const { return m_lines.value(row); }
    Instructions *instructions() const { return m_instructions; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    Instructions *m_instructions;
    QStringList m_lines;
};

/** Program text by lines, one of which is chosen. Lines have their number, and at the right what
 *  instruction they hold. */
class ProgramView : public QListView
{
    Q_OBJECT

public:
    explicit ProgramView(Instructions *instructions, QWidget *parent = nullptr);
    ~ProgramView() override;

    /** Shows the lines, and chooses one of them; the nearest that there is. */
    void setLines(const QStringList &lines, int row);
    void recognise() { m_model->recognise(); }
    /** The chosen line; -1 where there is none. */
    int row() const { return currentIndex().row(); }
    void setEmptyState(brisa::Glyph glyph, const QString &title, const QString &hint);

Q_SIGNALS:
    void rowChanged();
    /** A line was tapped twice. */
    void opened();

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    ProgramModel *m_model;
    brisa::Glyph m_emptyGlyph = brisa::Glyph::List;
    QString m_emptyTitle;
    QString m_emptyHint;
};
