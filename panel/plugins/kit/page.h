#pragma once

#include "marks.h"
#include "text.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace brisa
{
class ElidedLabel;
}

namespace kit
{

class NoticeLine;
class Overlay;

/**
 * The frame of a page: title, a line below it and buttons, a notice, and the body. It reads its
 * data anew soon after one of the keys that it follows changed, or the panel's language, and while
 * nobody looks, not until it is shown. GUI thread.
 */
class Page : public QWidget
{
    Q_OBJECT

public:
    Page(const QString &pluginName, const Text &title, QWidget *parent = nullptr);
    ~Page() override;

    const QString &pluginName() const;
    void setSubtitle(const QString &text);
    /** Adds a button right of the title. role as the host's style sheet has it. */
    QPushButton *addButton(const Text &text, const QString &objectName,
                           const QString &role = QString());
    /** Adds something else there. */
    void addToHeader(QWidget *widget);
    QVBoxLayout *body() const;

    /** Says something of the operator's last action; an empty sentence says no more. */
    void say(Tone tone, const QString &sentence);

    /** Asks before something that can't be undone; done is called where the operator agrees. */
    void confirm(const QString &title, const QString &text, const QString &agree,
                 std::function<void()> done);

    /** For what may block: shows the operator that the panel is busy with it, and starts it when
     *  that can be seen. Nothing happens while other work is under way. */
    void work(const QString &text, std::function<void()> job);

    /** Reads anew when one of these keys of the host's data changes, or a link comes or goes. */
    void follow(const QStringList &keys);
    /** Several calls make one refresh. */
    void refreshSoon();

    /** Where overlays enter themselves. */
    void setOverlay(Overlay *overlay);

protected:
    /** Reads the data and shows it. */
    virtual void refresh() = 0;

    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void applyTheme();

    QString m_pluginName;
    QHBoxLayout *m_header;
    brisa::ElidedLabel *m_title;
    brisa::ElidedLabel *m_subtitle;
    NoticeLine *m_notice;
    QVBoxLayout *m_body;
    QPointer<Overlay> m_overlay;
    QTimer m_refresh;
    bool m_working = false;
};

/** A page's entry in the navigation gets a pictogram of the host by its name. To be called in the
 *  plugin's init(): the entry stands then. */
void choosePictogram(QObject *origin, const QString &pluginName, const QString &icon);

} // namespace kit
