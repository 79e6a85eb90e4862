#pragma once

#include <QPointer>
#include <QWidget>

class QFrame;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace kit
{

class Page;

/**
 * A card in the middle of a page, above all that is there, which takes every touch of the page
 * until it is finished; no event loop of its own. What is around the page stays in reach: a robot
 * can be stopped while the panel asks something. The host counts it as a modal window of the page's
 * plugin. It belongs to the page's window, deletes itself when it is finished, and goes with its
 * page, also when another page is shown. A page has one at most: the next one that is opened
 * finishes the one before.
 */
class Overlay : public QWidget
{
    Q_OBJECT

public:
    Overlay(Page *page, const QString &title);
    ~Overlay() override;

    /** Where the content goes, between title and buttons. */
    QVBoxLayout *content() const;
    /** Adds wrapped plain text. */
    QLabel *addParagraph(const QString &text);
    /** Adds a button, which does nothing by itself. role as the host's style sheet has it. */
    QPushButton *addButton(const QString &text, const QString &objectName,
                           const QString &role = QString());
    /** Adds the button that only finishes it, as Escape then does too. */
    void addCancel(const QString &text);

    /** Pixels, where the page has them; 600 unless it is called. */
    void setCardWidth(int width);

    void open();
    void finish();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void applyTheme();
    void place();
    QList<QWidget *> focusChain() const;

    QPointer<Page> m_page;
    QFrame *m_card;
    QVBoxLayout *m_content;
    QHBoxLayout *m_buttons;
    int m_cardWidth = 600;
    bool m_open = false;
    bool m_cancelable = false;
};

} // namespace kit
