#pragma once

#include <QFrame>
#include <QList>
#include <QStringList>

namespace brisa
{
class ElidedLabel;
}

namespace panel
{

/** A card with a few facts side by side: a caption and a text each. */
class FactsCard : public QFrame
{
    Q_OBJECT

public:
    explicit FactsCard(const QStringList &captions, QWidget *parent = nullptr);

    /** One text per caption; a dash stands for an empty one. */
    void setValues(const QStringList &values);

private:
    void applyTheme();

    QList<brisa::ElidedLabel *> m_captions;
    QList<brisa::ElidedLabel *> m_values;
};

} // namespace panel
