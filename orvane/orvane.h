/// The public object model of Orvane: include this.
#pragma once

#include "orvane/automation/AutomationError.h"
#include "orvane/control/ObjectModel.h"
#include "orvane/control/OrvaneScaler.h"
#include "orvane/control/OrvaneTemplateCtl.h"
#include "orvane/forms/Container.h"
#include "orvane/graphs/grid/AreaGraph.h"
#include "orvane/graphs/grid/ColumnGraph.h"
#include "orvane/graphs/grid/RibbonGraph.h"
#include "orvane/graphs/pie/PieGraph.h"
#include "orvane/graphs/scatter/ScatterGraph.h"
#include "orvane/graphs/surface/DensityGraph.h"
#include "orvane/graphs/surface/RCComboGraph.h"
#include "orvane/graphs/surface/SCComboGraph.h"
#include "orvane/graphs/surface/SurfaceGraph.h"
#include "orvane/platform/HostServices.h"
#include "orvane/scene/OrvaneModule.h"
