#pragma once

/// All interfaces through which the library reads a model, and what holds for every operation of theirs.
///
/// A model is whatever answers them: the library casts a handle to an interface and calls an operation. An object that
/// doesn't answer an interface gives a null handle, which is a normal answer. Nothing in the model is changed.
///
/// *Identity.* GetImpl(0) gives the same pointer through whatever interface an object is reached, and an object that
/// stands in two lists is one object. Steps and nodes of the bill are matched by identity number
/// (QORModelIdentificator): objects that share one count as one there.
///
/// *Answers.* A list by pointer is new and the caller's to delete. Lists keep the model's order, and the bill follows
/// it. An out argument that isn't filled keeps what stood there.
///
/// *How often.* While a bill is computed the model doesn't change, and the library relies on it: for an unchanged
/// object an operation is asked once, several times or not at all. Names and types that the trace alone would show
/// aren't asked for while it is off.
///
/// *Thread.* Operations are called on the thread that called the library, one at a time, and on no other.
///
/// *Stack.* An operation finds at least 256 KiB of stack (QORDeepStack::kReserve), or what the caller of the library
/// had left. In deep plans that isn't the thread's own stack but a segment from the heap. A model that recurses by
/// itself through something deep uses QORCallDeep for it.
///
/// *Exceptions.* What an operation raises passes through to the caller of the library, which keeps
/// the bill that it had.
///
/// *Asked for by name.* The types that QORISpecObject is asked for; the component "VXMMVWMBOMViewerSettingCtrl", see
/// VXMIMVWMBOMViewerSettingAtt; the environment variable FAB_BOM_OLD_ALGORITHM, which selects the legacy algorithm when
/// it holds "true", in capitals or not; and QOR_TRACE, see QORTrace.

#include "QORPlatform/framework/QORDeepStack.h"
#include "VXMBomInfrastructure/model/QORIProduct.h"
#include "VXMBomInfrastructure/model/QORISPPAbstractActivity.h"
#include "VXMBomInfrastructure/model/QORISPPActivity.h"
#include "VXMBomInfrastructure/model/QORISPPActivityModificationEvents.h"
#include "VXMBomInfrastructure/model/QORISPPActivityRoot.h"
#include "VXMBomInfrastructure/model/QORISPPChildManagement.h"
#include "VXMBomInfrastructure/model/QORISPPControlFlow.h"
#include "VXMBomInfrastructure/model/QORISPPFlowMgt.h"
#include "VXMBomInfrastructure/model/QORISPPItem.h"
#include "VXMBomInfrastructure/model/QORISPPItemMgt.h"
#include "VXMBomInfrastructure/model/QORISPPProcessContainer.h"
#include "VXMBomInfrastructure/model/QORISPPProductIO.h"
#include "VXMBomInfrastructure/model/QORISpecObject.h"
#include "VXMBomInfrastructure/model/VXMIBIWFastener.h"
#include "VXMBomInfrastructure/model/VXMIMVWMBOMViewerSettingAtt.h"
#include "VXMBomInfrastructure/model/VXMIMfgAssembly.h"
#include "VXMBomInfrastructure/model/VXMIResourceBehavior.h"
#include "VXMBomInfrastructure/model/VXMIResourceBehaviorManager.h"
#include "VXMBomInfrastructure/model/VXMIResourceFlowMgmt.h"
#include "VXMBomInfrastructure/model/VXMIResourceItemMgmt.h"
