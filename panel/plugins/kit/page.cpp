#include "page.h"

#include "noticeline.h"
#include "overlay.h"

#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QShowEvent>
#include <QVBoxLayout>
#include <brisa/controllermanager.h>
#include <brisa/elidedlabel.h>
#include <brisa/managerhelper.h>
#include <brisa/thememanager.h>
#include <brisa/translated.h>
#include <nexo/nexo.h>
#include <ostrel/moduleobject.h>

namespace kit
{

using brisa::ThemeManager;
namespace metrics = brisa::metrics;

namespace
{

constexpr int PageMargin = 3 * metrics::Grid;
constexpr int RefreshDelay = 40; // ms: faster than this nobody reads

} // namespace

Page::Page(const QString &pluginName, const Text &title, QWidget *parent)
    : QWidget(parent)
    , m_pluginName(pluginName)
    , m_header(new QHBoxLayout)
    , m_title(new brisa::ElidedLabel(QString(), this))
    , m_subtitle(new brisa::ElidedLabel(QString(), this))
    , m_notice(new NoticeLine(NoticeLine::Closable, this))
    , m_body(new QVBoxLayout)
{
    brisa::translated(m_title, [label = m_title, title] { label->setText(title()); });
    m_title->setFont(ThemeManager::font(brisa::TextSize::Heading, true));
    m_subtitle->setFont(ThemeManager::font(brisa::TextSize::Body));
    auto *const titles = new QVBoxLayout;
    titles->setSpacing(metrics::Grid / 2);
    titles->addStretch(1);
    titles->addWidget(m_title);
    titles->addWidget(m_subtitle);
    titles->addStretch(1);
    m_header->setSpacing(metrics::Grid);
    m_header->addLayout(titles, 1);
    m_header->addStrut(metrics::Touch); // titles stand alike, with buttons and without
    m_body->setSpacing(metrics::Margin);
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(PageMargin, PageMargin, PageMargin, PageMargin);
    column->setSpacing(metrics::Margin);
    column->addLayout(m_header);
    column->addWidget(m_notice);
    column->addLayout(m_body, 1);
    m_refresh.setSingleShot(true);
    connect(&m_refresh, &QTimer::timeout, this, [this] { refresh(); });
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this, &Page::applyTheme);
    applyTheme();
}

Page::~Page()
{
    delete m_overlay;
}

const QString &Page::pluginName() const
{
    return m_pluginName;
}

void Page::setSubtitle(const QString &text)
{
    m_subtitle->setText(text);
}

QPushButton *Page::addButton(const Text &text, const QString &objectName, const QString &role)
{
    auto *const button = new QPushButton(this);
    brisa::translated(button, [button, text] { button->setText(text()); });
    button->setObjectName(objectName);
    button->setProperty("role", role);
    addToHeader(button);
    return button;
}

void Page::addToHeader(QWidget *widget)
{
    m_header->addWidget(widget);
}

QVBoxLayout *Page::body() const
{
    return m_body;
}

void Page::say(Tone tone, const QString &sentence)
{
    m_notice->say(tone, sentence);
}

void Page::confirm(const QString &title, const QString &text, const QString &agree,
                   std::function<void()> done)
{
    auto *const overlay = new Overlay(this, title);
    overlay->addParagraph(text);
    overlay->addCancel(tr("Cancel"));
    const QPushButton *const button
        = overlay->addButton(agree, QStringLiteral("agree"), QStringLiteral("danger"));
    connect(button, &QPushButton::clicked, overlay, [overlay, done = std::move(done)] {
        overlay->finish();
        done();
    });
    overlay->open();
}

void Page::work(const QString &text, std::function<void()> job)
{
    if (std::exchange(m_working, true))
        return;
    auto *const overlay = new Overlay(this, text);
    overlay->setObjectName(QStringLiteral("busy"));
    overlay->addParagraph(tr("Please wait: the panel takes no other command meanwhile."))
        ->setProperty("role", QStringLiteral("muted"));
    overlay->open();
    overlay->repaint();
    const QPointer<Page> self(this);
    const QPointer<Overlay> shown(overlay);
    QTimer::singleShot(0, this, [self, shown, job = std::move(job)] {
        // Whatever the job does, the panel must not stay locked.
        const auto end = qScopeGuard([&] {
            if (shown)
                shown->finish();
            if (!self)
                return;
            self->m_working = false;
            self->refreshSoon();
        });
        job();
    });
}

void Page::follow(const QStringList &keys)
{
    for (const QString &key : keys)
        connect(m(key), &ostrel::ModuleObject::changed, this, &Page::refreshSoon,
                Qt::UniqueConnection);
    const auto *const controller = brisa::ManagerHelper::instance()->controllerManager();
    connect(controller, &brisa::ControllerManager::rcConnected, this, &Page::refreshSoon,
            Qt::UniqueConnection);
    connect(controller, &brisa::ControllerManager::rcDisconnected, this, &Page::refreshSoon,
            Qt::UniqueConnection);
    connect(nexo()->mobj()->r(QStringLiteral("connected")), &ostrel::ModuleObject::changed, this,
            &Page::refreshSoon, Qt::UniqueConnection);
}

void Page::refreshSoon()
{
    if (isVisible() && !m_refresh.isActive())
        m_refresh.start(RefreshDelay);
}

void Page::setOverlay(Overlay *overlay)
{
    if (m_overlay)
        m_overlay->finish();
    m_overlay = overlay;
}

void Page::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous())
        refresh();
}

// An overlay ends with its page. The host may also hide the page just to put it somewhere else, so
// this looks again when that is done. What is under way finishes its own.
void Page::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous())
        return;
    m_refresh.stop();
    QTimer::singleShot(0, this, [this] {
        if (isVisible())
            return;
        if (m_overlay && !m_working)
            m_overlay->finish();
        say(Tone::Plain, QString());
    });
}

void Page::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        refreshSoon();
}

void Page::applyTheme()
{
    m_subtitle->setColour(ThemeManager::instance()->colours().mutedText);
}

void choosePictogram(QObject *origin, const QString &pluginName, const QString &icon)
{
    const QString nav = QStringLiteral("zeplet.") + pluginName;
    ostrel::ModuleObject *const pages = m(QStringLiteral("kivra.page.robot.page.pack.page"));
    for (int i = 0; i < pages->childCount(); ++i) {
        ostrel::ModuleObject *const entry = pages->childAt(i);
        if (entry->getStr(QStringLiteral("nav"), QString()) == nav)
            entry->set(origin, QStringLiteral("icon"), icon, true);
    }
}

} // namespace kit
