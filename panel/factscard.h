#pragma once

#include <QFrame>
#include <QList>
#include <QStringList>
#include <functional>

class QGridLayout;

namespace brisa
{
class ElidedLabel;
}

namespace panel
{

/** A card with a few facts side by side, in two rows where it is narrow: a caption and a text each.
 */
class FactsCard : public QFrame
{
    Q_OBJECT

public:
    /** captions: in the language of the panel, called again when that changes. */
    explicit FactsCard(const std::function<QStringList()> &captions, QWidget *parent = nullptr);

    /** One text per caption; a dash stands for an empty one. */
    void setValues(const QStringList &values);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void place(int columns);
    void applyTheme();

    QGridLayout *m_grid = nullptr;
    int m_columns = 0;
    QList<brisa::ElidedLabel *> m_captions;
    QList<brisa::ElidedLabel *> m_values;
};

} // namespace panel
