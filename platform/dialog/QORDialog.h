#pragma once

#include "QORPlatform/dialog/QORCommand.h"

/// Place and size of a dialog object in pixels; a size of 0 means that there is none yet.
struct DRECT {
    int x = 0;
    int y = 0;
    int dx = 0; ///< width
    int dy = 0; ///< height

    friend bool operator==(const DRECT& iLeft, const DRECT& iRight) {
        return iLeft.x == iRight.x && iLeft.y == iRight.y && iLeft.dx == iRight.dx && iLeft.dy == iRight.dy;
    }
};

/// A dialog object with a place on the screen, a parent and children. Children end with their parent, the last made
/// first; who holds a reference of his own on a child keeps it, without a parent, until he lets go.
class QOR_EXPORT QORDialog : public QORCommand {
public:
    ~QORDialog() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;

    /// The dialog that this one stands in; null for one of its own, and for one whose parent has ended.
    QORDialog* GetParent() const { return _parent; }

    /// In the order in which they were made.
    const std::vector<QORDialog*>& GetChildren() const { return _children; }

    /// Fills oRect with the present place and size; all 0 before the object was shown anywhere.
    void GetRectDimensions(DRECT& oRect) const { oRect = _rect; }

    /// Tells the object its place and size: from whoever shows it, when that has changed.
    void SetRectDimensions(const DRECT& iRect);

    /// Name of the dialog resources at a level of the class chain: 0 (or below) for the object's own class, 1 for the
    /// base, and so on; null above this class.
    virtual const char* GetResourceFilename(int iLevel);

protected:
    QORDialog(QORDialog* iParent, const QORString& iName);

    void LeaveParent() override;

    /// Ends all children. For destructors of classes whose children need more of them than a QORDialog.
    void EndChildren();

    /// Called when place or size has changed.
    virtual void RectChanged() {}

    /// Called when what stands inside this object was arranged anew; by default it is told to the parent.
    virtual void LayoutChanged();

    /// Called before a child leaves.
    virtual void ChildLeaves(QORDialog&) {}

private:
    QORDialog* _parent;
    std::vector<QORDialog*> _children;
    DRECT _rect;
};
