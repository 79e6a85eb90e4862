#pragma once

#include "hostexport.h"

#include <QObject>
#include <QPointer>
#include <QString>

class QWidget;

namespace brisa
{

/**
 * The base of settings pages: a page widget with a title bar above a content widget, which can be
 * scrolled where the page is too small for it. The object is owned by its module; the page widget
 * is owned by this object, wherever it is shown. GUI thread.
 */
class HOST_EXPORT BaseSettingPage : public QObject
{
    Q_OBJECT

public:
    BaseSettingPage(const QString &name, const QString &pluginName, QWidget *parent,
                    QObject *module);
    ~BaseSettingPage() override;

    virtual QWidget *wgt();
    /** Milliseconds between automatic saves. */
    virtual int autoSaveInterval() const;
    virtual bool loadFromMobj();
    virtual void loadFromRC();
    virtual void saveToRC();
    virtual void saveToMobj();

    QWidget *titleWidget() const;
    QWidget *contentWidget() const;

    /** Applies the host's global style sheet to the page, to a hidden one as soon as it is shown;
     *  cheap when nothing changed. */
    void startRender();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeScrollable();
    void applyStyleSheet();

    QPointer<QWidget> m_page;
    QPointer<QWidget> m_title;
    QPointer<QWidget> m_content;
    bool m_renders = false; ///< startRender() was called
    bool m_scrollable = false;
    int m_renderedRevision = 0;
};

} // namespace brisa
