#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/navigation/QORNavigBox.h"
#include "QORPlatform/text/QORUnicodeString.h"
#include "QORPlatform/visualization/QORVisManager.h"
#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer.h"
#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"

#include <memory>

/// What a window of a BOM has of its own.
struct VXMFabBomViewerState {
    bool HasTree() const { return (_iDisplayMode & 1) != 0; }
    bool HasItems() const { return _iDisplayMode >= VXMFabBomViewer::kItemsOnly; }

    /// A tree object for the top of a document.
    static QORBaseUnknown_var MakeTreeObject(const DOM_Document& iDocument);

    /// Gives the box what its rows are, for the document that the generator has by now.
    void TellRows() const;

    QORViewer* _viewer = nullptr;        // owned: ended by the window
    QORDlgFrame* _windowFrame = nullptr; // where viewer and tree box stand
    QORViewpoint* _viewpoint = nullptr;  // null in display mode 1, and so is _visManager
    QORUnicodeString _windowName;
    std::unique_ptr<VXMBomGenerator> _generator; // null where there is no bill under the root
    long _callbackHandle = kQORNoCallback;
    QORNavigBox* _navigBox = nullptr;             // null when it couldn't be set up
    QORListValQORBaseUnknown_var _previewObjects; // last given to the view in space
    QORVisManager* _visManager = nullptr;
    int _iDisplayMode = 0;
    QORVar<QOREventSubscriber> _publisher; // of the subscription, whatever document is current by now

    /// What the window has been told and hasn't followed yet.
    struct Told {
        bool rebuild = false;
        bool compare = false;

        void Add(bool iRebuild) {
            rebuild |= iRebuild;
            compare = true;
        }
    };
    bool _isRebuilding = false;
    Told _meanwhile;  // while it rebuilds
    Told _afterGroup; // in the group of notifications that is open
    bool _isOutOfDate = false;
};
