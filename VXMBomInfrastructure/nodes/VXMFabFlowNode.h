#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/text/QORString.h"
#include "QORPlatform/text/QORUnicodeString.h"
#include "VXMBomInfrastructure/VXMExport.h"
#include "VXMBomInfrastructure/model/QORISPPAbstractActivity.h"

#include <memory>

/// Vertex of the flow graph: one step of the flow, with what its model object contributes to the bill.
///
/// The five lists are a snapshot: the constructor reads the model, and nobody asks it again, so a changed model needs a
/// new graph. After construction only the links change. The generator owns all nodes; neighbours don't
/// own each other, and handles that a reader takes out of a list stay valid when the node goes.
class VXM_EXPORT VXMFabFlowNode {
public:
    /// What the model object is. NT_ACTIVITY stands for anything but the other three.
    enum NodeType { NT_ACTIVITY = 0, NT_LOADING = 2, NT_STATION = 3, NT_GROUPING = 4 };

    /// iFastenersShowMode is the mask of the fastener types to collect, iAssignedFastenersShowMode 1 for assigned
    /// fasteners only. Numbers are -1 and lists empty until the subclass has read the model.
    VXMFabFlowNode(const int iFastenersShowMode, const unsigned char iAssignedFastenersShowMode);
    virtual ~VXMFabFlowNode();
    VXMFabFlowNode(const VXMFabFlowNode&) = delete;
    VXMFabFlowNode& operator=(const VXMFabFlowNode&) = delete;

    /// 1 for the node of a resource, 0 for that of an activity.
    virtual unsigned char IsAResourceFlowNode() = 0;

    /// Appends a neighbour, at this node only and without any test: whoever links calls both sides.
    void AddPredecessor(VXMFabFlowNode* iNode);
    void AddSuccessor(VXMFabFlowNode* iNode);

    int GetNumberOfPredecessors() const;
    int GetNumberOfSuccessors() const;

    /// The neighbour at a position from 1, in the order in which they were added; null outside 1 to the number.
    VXMFabFlowNode* GetPredecessor(int iPosition) const;
    VXMFabFlowNode* GetSuccessor(int iPosition) const;

    /// Name of the model object, as narrow text and as text of the platform.
    QORString GetName() const { return QORString(static_cast<const char*>(_name)); }
    QORUnicodeString GetUName() const { return _name; }

    /// Running number from the generator's counter, and depth in the tree that was walked. -1 on a node without model
    /// object, which has its level all the same.
    int GetNumber() const { return _number; }
    int GetLevel() const { return _level; }

    /// Identity number of the model object, -1 without one, and the same in decimal: the node's key.
    int GetID() const { return _id; }
    QORUnicodeString GetIDString() const;

    /// The model object: an activity, or the manager of a behaviour.
    QORBaseUnknown_var GetActivity() const { return _activity; }

    /// One of NodeType; and 1 when an activity above this one is a station, else 0.
    int GetNodeType() const { return _nodeType; }
    unsigned char ParentIsStation() const { return _parentIsStation; }

    /// The products of each kind (first assigned, assigned, removed, put out) and the fasteners to show, positions
    /// from 1. The handle is the caller's own.
    int GetNumberOfFAP() const { return _fap.Size(); }
    int GetNumberOfPP() const { return _pp.Size(); }
    int GetNumberOfRP() const { return _rp.Size(); }
    int GetNumberOfCP() const { return _cp.Size(); }
    int GetNumberOfFasteners() const { return _fasteners.Size(); }
    QORBaseUnknown_var GetFAP(int iPosition) const { return _fap[iPosition]; }
    QORBaseUnknown_var GetPP(int iPosition) const { return _pp[iPosition]; }
    QORBaseUnknown_var GetRP(int iPosition) const { return _rp[iPosition]; }
    QORBaseUnknown_var GetCP(int iPosition) const { return _cp[iPosition]; }
    QORBaseUnknown_var GetFasteners(int iPosition) const { return _fasteners[iPosition]; }

    /// Sets the node type by the model types of the model object; the first of loading, station, grouping wins.
    void CheckActivityType();

    /// 1 when iActivity or an activity above it is a station, else 0. Sets nothing.
    unsigned char CheckParentIsStation(QORISPPAbstractActivity_var& iActivity);

    /// Appends every entry to the first assigned products. The list, which may be null, is taken over and deleted.
    void CreateFirstAssignedProductsList(QORListValQORBaseUnknown_var* iList);

    /// Appends the fasteners of the list that the show modes ask for. The list, which may be null, is taken over.
    void CreateFastenerList(QORListValQORBaseUnknown_var* iList);

protected:
    // What a subclass fills in its constructor. Nothing changes it afterwards.

    QORBaseUnknown_var _activity;
    QORUnicodeString _name;
    QORListValQORBaseUnknown_var _fap;
    QORListValQORBaseUnknown_var _pp;
    QORListValQORBaseUnknown_var _rp;
    QORListValQORBaseUnknown_var _cp;
    QORListValQORBaseUnknown_var _fasteners;
    int _level = 0;
    int _id = -1;
    int _number = -1;
    int _nodeType = NT_ACTIVITY;
    unsigned char _parentIsStation = 0;
    int _fastenersShowMode;
    unsigned char _assignedFastenersShowMode;

private:
    class Links;
    std::unique_ptr<Links> _links;
};
