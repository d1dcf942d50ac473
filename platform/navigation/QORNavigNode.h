#pragma once

#include "QORPlatform/framework/QORObjectCounts.h"
#include "QORPlatform/navigation/QORIGraphNode.h"

class QORNavigInstance;

/// Node object that the navigator makes for a tree object. Its late type is the class name of the tree object with
/// "_node" behind, and extensions of that type say how it looks and behaves; by itself it answers QORIGraphNode only.
class QOR_EXPORT QORNavigNode : public QORBaseUnknown, private QORCounted<QORNavigNode> {
public:
    static constexpr std::string_view kCountName = "QORNavigNode";

    explicit QORNavigNode(const QORBaseUnknown_var& iTreeObject);
    ~QORNavigNode() override;

    /// Meta class of the late type.
    QORMetaClass* GetMetaObject() const override;
    QORStatus QueryInterface(const QORInterfaceID& iInterface, void** oInterface) override;

    /// Implementation of the tree object, never null.
    QORBaseUnknown* GetTreeObject() const { return _treeObject.Get(); }

    /// The node's place, null when that has ended.
    QORNavigInstance* GetInstance() const { return _instance; }

    void SetLabel(const QORUnicodeString& iLabel);
    QORUnicodeString GetLabel() const { return _label; }
    void SetIconName(const QORUnicodeString& iName);
    QORUnicodeString GetIconName() const { return _iconName; }
    void SetNodeOption(int iOption);
    int GetNodeOption() const { return _option; }

private:
    friend class QORNavigInstance;

    void Changed();

    QORBaseUnknown_var _treeObject;
    QORNavigInstance* _instance = nullptr;
    QORUnicodeString _label;
    QORUnicodeString _iconName;
    int _option = kQORNodePlain;
    QORIGraphNodeTie<QORNavigNode> _graphNode{this};
};
