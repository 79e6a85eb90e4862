#include "tavik/robotdata.h"

#include "brisa/controllermanager.h"
#include "brisa/managerhelper.h"
#include "ostrel/moduleobject.h"
#include "tavik/hotupdates_p.h"
#include "tavik/listmirrors_p.h"
#include "tavik/openproject_p.h"
#include "tavik/projectlist_p.h"
#include "tavik/refusals_p.h"
#include "tavik/runcontrol_p.h"
#include "tavik/selectedframes_p.h"
#include "tavik/storeedit_p.h"
#include "tavik/workspace_p.h"

namespace tavik
{

namespace
{

/** What each new point and variable starts as. */
const char *const pointTemplate
    = R"({"id": 0, "name": "", "property": "cart", "pers": "false", "description": "", "func": "",
          "task": "", "d": [0, 0, 0], "value": {}})";
const char *const variableTemplate
    = R"({"id": 0, "name": "", "type": "", "value": {}, "pers": false, "description": ""})";

void enterTemplate(const char *key, const char *content)
{
    ostrel::ModuleObject *const node = m(QLatin1String(key));
    if (node->isNull())
        node->fromJsonText(nullptr, content);
}

} // namespace

/** Members in the order in which they need each other: the workspace comes first. */
class RobotData::Private
{
public:
    explicit Private(brisa::ControllerManager *controller)
        : lists(controller)
        , project(controller)
        , run(controller)
    {
    }

    Workspace workspace;
    ProjectList projects;
    ListMirrors lists;
    OpenProject project;
    HotUpdates hotUpdates;
    SelectedFrames frames;
    RunControl run;
};

RobotData::RobotData(QObject *parent)
    : QObject(parent)
{
    enterTemplate("tavik.project.point.default", pointTemplate);
    enterTemplate("tavik.project.var.default", variableTemplate);
    brisa::ControllerManager *const controller
        = brisa::ManagerHelper::instance()->controllerManager();
    d = std::make_unique<Private>(controller);
    connect(&d->lists, &ListMirrors::overviewRead, &d->project, &OpenProject::openAutoload);
    connect(controller, &brisa::ControllerManager::requestFailed, this,
            [](const QString &command, const QString &reason, bool refused) {
                const QString sentence = failureSentence(command, reason, refused);
                if (!sentence.isEmpty())
                    tell(QStringLiteral("warning"), sentence);
            });
}

RobotData::~RobotData() = default;

} // namespace tavik
