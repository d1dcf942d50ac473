#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"

class VXMFabFlowNode;

// What the flow nodes of activities and of resources do alike while they read the model.

/// Takes over a list, which may be null, and appends its entries to oTarget.
void VXMTakeOver(QORListValQORBaseUnknown_var* iList, QORListValQORBaseUnknown_var& oTarget);

/// Identity number of the object behind a handle, which isn't null.
int VXMIdentityOf(const QORBaseUnknown_var& iObject);

/// Write the line about fasteners being shown, and the closing lines about the finished node.
void VXMTraceFastenersAreShown();
void VXMTraceNode(const VXMFabFlowNode& iNode);
