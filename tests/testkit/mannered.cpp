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
        auto *const start = new QPushButton(QStringLiteral("&Start"), page);
        start->setObjectName(QStringLiteral("startKey"));
        layout->addWidget(start);
        auto *const off = new QPushButton(QStringLiteral("Off"), page);
        off->setEnabled(false);
        layout->addWidget(off);
        layout->addStretch();
        QObject::connect(start, &QPushButton::clicked, this, [] {
            zeplet::zepletInterface()->rcRequestFullCommand(QStringLiteral("gripper.close"),
                                                            QJsonObject {{"force", 40}});
            zeplet::ThrowLog(QStringLiteral("mannered"), zeplet::ThrowLogWarning,
                             QStringLiteral("The gripper closes."));
        });
        zeplet::CreateCenterWidget(QStringLiteral("mannered"), page);
        zeplet::zepletEvent()->subscribe(
            zeplet::RCRunStart, [](const zeplet::ZepletEvent &) {}, QStringLiteral("mannered"),
            this);
    }
};

static const bool isRegistered = [] {
    zeplet::zepletFactory().regist(QStringLiteral("mannered"),
                                   [](QObject *parent) { return new Mannered(parent); });
    return true;
}();
