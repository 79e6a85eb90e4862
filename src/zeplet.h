#pragma once

// What plugin authors use.
#include <zeplet/events/zepletevent.h>
#include <zeplet/events/zepleteventfilters.h>
#include <zeplet/events/zepleteventsystem.h>
#include <zeplet/events/zepleteventtype.h>
#include <zeplet/interface/custominterface.h>
#include <zeplet/interface/interfacemanager.h>
#include <zeplet/interface/networkinterface.h>
#include <zeplet/interface/serviceinterface.h>
#include <zeplet/log/flog.h>
#include <zeplet/log/qflog.h>
#include <zeplet/log/qlog.h>
#include <zeplet/plugin/pluginbase.h>
#include <zeplet/plugin/pluginregister.h>
#include <zeplet/plugin/uiservices.h>
#include <zeplet/rl/rlbasewidget.h>
#include <zeplet/rl/rlcontentbase.h>
#include <zeplet/rl/rlmanager.h>
#include <zeplet/sync/synctool.h>
