#include <zeplet/plugin/pluginsettingpage.h>

#include <zeplet/log/hostlines_p.h>

#include <QGuiApplication>
#include <QScreen>

namespace zeplet
{

PluginSettingPage::PluginSettingPage(const QString &name, const QString &pluginName,
                                     QWidget *parent, QObject *module)
    : brisa::BaseSettingPage(name, pluginName, parent, module)
    , m_layout(new QHBoxLayout)
{
    titleWidget()->setVisible(false);
    contentWidget()->setLayout(m_layout);
    m_layout->setContentsMargins(0, 0, 0, 0);
}

PluginSettingPage::~PluginSettingPage() = default;

void PluginSettingPage::createCenterWidget(QWidget *widget)
{
    // A widget that still fills the screen would have no way back once it is replaced; one that
    // died there leaves only the flag behind.
    if (m_fullWidget && m_centerWidget)
        changeFullWidget(false);
    m_fullWidget = false;
    m_centerWidget = widget;
    if (m_layout)
        m_layout->addWidget(widget);
}

bool PluginSettingPage::changeFullWidget(bool full)
{
    if (!m_centerWidget)
        return false;
    if (full == m_fullWidget) {
        errorLine() << QStringLiteral("<zeplet>") << QStringLiteral("Current FullWidget Type is")
                    << QVariant(m_fullWidget) << QStringLiteral("! Change Failed!");
        return false;
    }
    if (full)
        takeOut();
    else
        putBack();
    m_fullWidget = full;
    return true;
}

bool PluginSettingPage::isFullWidget() const
{
    return m_fullWidget && m_centerWidget;
}

void PluginSettingPage::takeOut()
{
    m_savedParent = m_centerWidget->parentWidget();
    m_savedStyleSheet = m_centerWidget->styleSheet();
    m_savedWindowFlags = m_centerWidget->windowFlags();

    QLayoutItem *first = m_layout ? m_layout->itemAt(0) : nullptr;
    if (first && first->widget() == m_centerWidget)
        delete m_layout->takeAt(0);

    m_centerWidget->setParent(nullptr,
                              Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    m_centerWidget->setGeometry(QGuiApplication::primaryScreen()->geometry());

    m_centerWidget->setStyleSheet(m_savedStyleSheet);
    m_centerWidget->ensurePolished();
    m_centerWidget->repaint();
    m_centerWidget->raise();
    m_centerWidget->show();
    m_centerWidget->activateWindow();
}

void PluginSettingPage::putBack()
{
    // Without the page nobody would own the widget any more.
    if (!m_layout) {
        delete m_centerWidget;
        return;
    }
    m_centerWidget->setParent(m_savedParent, m_savedWindowFlags);
    m_centerWidget->setStyleSheet(m_savedStyleSheet);
    m_layout->addWidget(m_centerWidget);
    m_layout->update();
    m_centerWidget->show();
}

} // namespace zeplet
