#pragma once

#include "kit/page.h"
#include "pointedits.h"

class ArmFeed;
class ArmView;
class MoveBar;
class PoseCard;
class QComboBox;
class QFrame;

namespace brisa
{
class ElidedLabel;
}

namespace kit
{
class Table;
}

/** The points of the open project beside the robot's arm: taught, edited, moved to and deleted. */
class PointsPage : public kit::Page
{
    Q_OBJECT

public:
    explicit PointsPage(QWidget *parent = nullptr);

    static QString pluginName();

    QSize minimumSizeHint() const override;

protected:
    void refresh() override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QLayout *makeList();
    QFrame *makeArm();
    QPushButton *makeKey(const kit::Text &text, const char *objectName);
    void refreshChosen();
    void refreshElements(const Point *point);
    void refreshKeys(const Point *point, const Element *element);
    void refreshMarks();
    void followArm();
    void edit(const QString &title, std::function<Outcome()> job, const QString &choose = {});
    void teachNew();
    void teach();
    void editValues();
    void addElement();
    void removeElement();
    void remove();
    const Point *chosen() const;
    const Element *chosenElement() const;

    QVector<Point> m_points;
    QString m_project;
    bool m_unsaved = false;
    bool m_wasMoving = false;
    bool m_narrow = false;
    ArmFeed *m_feed;
    kit::Table *m_table = nullptr;
    QComboBox *m_elements = nullptr;
    brisa::ElidedLabel *m_values = nullptr;
    QFrame *m_armCard = nullptr;
    ArmView *m_arm = nullptr;
    PoseCard *m_pose = nullptr;
    MoveBar *m_bar = nullptr;
    QPushButton *m_save;
    QPushButton *m_new;
    QPushButton *m_add = nullptr;
    QPushButton *m_removeElement = nullptr;
    QPushButton *m_teach = nullptr;
    QPushButton *m_edit = nullptr;
    QPushButton *m_delete = nullptr;
};
