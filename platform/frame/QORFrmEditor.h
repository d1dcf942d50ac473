#pragma once

#include "QORPlatform/dialog/QORWatch.h"
#include "QORPlatform/framework/QORObjectCounts.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/visualization/QORXSO.h"

/// What works on a document: has the document and the two selection sets of those who look at it. One editor at most is
/// the current one. Windows and boxes that were made with an editor don't keep it, and may outlive it.
class QOR_EXPORT QORFrmEditor : public QORBaseUnknown, public QORWatchable, private QORCounted<QORFrmEditor> {
public:
    static constexpr std::string_view kCountName = "QORFrmEditor";

    enum Selection {
        WithSelection,   ///< has both sets
        WithoutSelection ///< only looked at: nothing can be selected, there are no sets
    };

    /// Counts on the document, which may be null. Doesn't make itself the current one.
    explicit QORFrmEditor(QORBaseUnknown* iDocument, Selection iSelection = WithSelection);

    /// When it is the current one, there is none from then on.
    ~QORFrmEditor() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;

    /// The current editor, null when there is none; nobody's reference. Null for iEditor leaves none.
    static QORFrmEditor* GetCurrentEditor();
    static void SetCurrentEditor(QORFrmEditor* iEditor);

    /// The document, null for none. No reference passes to the caller.
    QORBaseUnknown* GetDocument() const { return _document.Get(); }

    /// The sets of what the pointer is over and of what was picked, null without selection. No reference passes to the
    /// caller.
    QORXSO* GetHSO() const { return _hso.Get(); }
    QORXSO* GetPSO() const { return _pso.Get(); }

private:
    QORBaseUnknown_var _document;
    QORVar<QORXSO> _hso;
    QORVar<QORXSO> _pso;
};
