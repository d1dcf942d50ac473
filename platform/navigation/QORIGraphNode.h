#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/text/QORUnicodeString.h"

/// Option of a node that is painted like any other.
inline constexpr int kQORNodePlain = 0;

/// Answered by the nodes of a tree: what is painted for one.
class QORIGraphNode : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORIGraphNode"); }

    /// Label of the node. The navigator sets it from the tree object at each update.
    virtual void SetLabel(const QORUnicodeString& iLabel) = 0;
    virtual QORUnicodeString GetLabel() = 0;

    /// Name of the icon, without path or ending; empty for none.
    virtual void SetIconName(const QORUnicodeString& iName) = 0;
    virtual QORUnicodeString GetIconName() = 0;

    /// How the node is painted: kQORNodePlain, or a way of the toolkit's own.
    virtual void SetNodeOption(int iOption) = 0;
    virtual int GetNodeOption() = 0;
};

inline constexpr QORInterfaceID IID_QORIGraphNode = QORIGraphNode::InterfaceID();
using QORIGraphNode_var = QORVar<QORIGraphNode>;

template <class Impl>
class QORIGraphNodeTie : public QORTie<QORIGraphNode, Impl> {
public:
    using QORTie<QORIGraphNode, Impl>::QORTie;

    void SetLabel(const QORUnicodeString& iLabel) override { this->Target()->SetLabel(iLabel); }
    QORUnicodeString GetLabel() override { return this->Target()->GetLabel(); }
    void SetIconName(const QORUnicodeString& iName) override { this->Target()->SetIconName(iName); }
    QORUnicodeString GetIconName() override { return this->Target()->GetIconName(); }
    void SetNodeOption(int iOption) override { this->Target()->SetNodeOption(iOption); }
    int GetNodeOption() override { return this->Target()->GetNodeOption(); }
};
