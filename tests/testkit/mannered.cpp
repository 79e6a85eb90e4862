// Uses a bit of everything, and puts it back.
#include <QPushButton>
#include <QVBoxLayout>
#include <zeplet/zeplet.h>

class Mannered : public zeplet::PluginBase
{
public:
    using PluginBase::PluginBase;

    void init() override
    {
        auto *const page = new QWidget;
        auto *const layout = new QVBoxLayout(page);
        auto *const close = new QPushButton(QStringLiteral("&Close"), page);
        close->setObjectName(QStringLiteral("closeKey"));
        layout->addWidget(close);
        auto *const off = new QPushButton(QStringLiteral("Off"), page);
        off->setEnabled(false);
        layout->addWidget(off);
        layout->addStretch();
        QObject::connect(close, &QPushButton::clicked, this, [] {
            zeplet::zepletInterface()->rcRequestFullCommand(QStringLiteral("gripper.close"),
                                                            QJsonObject {{"force", 40}});
            zeplet::ThrowLog(QStringLiteral("mannered"), zeplet::ThrowLogWarning,
                             QStringLiteral("The gripper closes."));
        });
        zeplet::CreateCenterWidget(QStringLiteral("mannered"), page);
        zeplet::zepletInterface()->connectNexoData(
            QStringLiteral("mannered"), QStringLiteral("gripper.width"), [](const QVariant &) {});
    }

    void detach() override
    {
        zeplet::zepletInterface()->disconnectNexoData(QStringLiteral("mannered"),
                                                      QStringLiteral("gripper.width"), QString());
    }
};

static const bool isRegistered = [] {
    zeplet::zepletFactory().regist(QStringLiteral("mannered"),
                                   [](QObject *parent) { return new Mannered(parent); });
    return true;
}();
