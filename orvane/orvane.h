/// The public object model of Orvane: include this.
#pragma once

#include "orvane/control/ObjectModel.h"
#include "orvane/control/OrvaneScaler.h"
#include "orvane/control/OrvaneTemplateCtl.h"
#include "orvane/graphs/grid/AreaGraph.h"
#include "orvane/graphs/grid/ColumnGraph.h"
#include "orvane/graphs/grid/RibbonGraph.h"
#include "orvane/graphs/pie/PieGraph.h"
#include "orvane/graphs/scatter/ScatterGraph.h"
#include "orvane/graphs/surface/DensityGraph.h"
#include "orvane/graphs/surface/RCComboGraph.h"
#include "orvane/graphs/surface/SCComboGraph.h"
#include "orvane/graphs/surface/SurfaceGraph.h"
#include "orvane/host/AutomationError.h"
#include "orvane/host/Container.h"
#include "orvane/host/HostServices.h"
#include "orvane/scene/OrvaneModule.h"
