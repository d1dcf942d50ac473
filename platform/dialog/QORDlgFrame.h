#pragma once

#include "QORPlatform/dialog/QORDialog.h"

/// What a frame does with the room that it has.
inline constexpr int kQORFramePlain = 0;
inline constexpr int kQORFrameTag = 0x80000; ///< stands beside the viewer, with an edge that can be dragged

/// A frame that arranges its children.
class QOR_EXPORT QORDlgFrame : public QORDialog {
public:
    /// iStyle is one of the values above.
    QORDlgFrame(QORDialog* iParent, const QORString& iName, int iStyle = kQORFramePlain);
    ~QORDlgFrame() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;

    int GetStyle() const { return _style; }

    /// Ties all four sides of a child of this frame to the frame's, so that it follows each change of size. Negative,
    /// and nothing happens, for null, for what is no child of this frame and for what is attached.
    QORStatus Attach4Sides(QORDialog* iChild);

    /// Takes that back. Negative for what isn't attached. A child that leaves is no longer attached.
    QORStatus ResetAttachment(QORDialog* iChild);

    bool IsAttached(const QORDialog* iChild) const;

protected:
    void ChildLeaves(QORDialog& iChild) override { ResetAttachment(&iChild); }

private:
    int _style;
    std::vector<const QORDialog*> _attached;
};
