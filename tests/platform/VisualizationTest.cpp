#include "support/RecordingToolkit.h"
#include "visualization/QOR2DPickViewpointEditor.h"
#include "visualization/QORI3DGeoVisu.h"
#include "visualization/QORNavigation2DViewer.h"
#include "visualization/QORNavigation3DViewer.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using recording::Log;
using recording::Toolkit;

/// A frame to put viewers into.
class Stage : public QORDlgFrame {
public:
    Stage() : QORDlgFrame(nullptr, "stage") {}
};

/// A thing in space, through two interface pointers.
class Block : public QORBaseUnknown {
public:
    explicit Block(int number) { SetIdentity(number); }

    QORStatus QueryInterface(const QORInterfaceID& interface, void** out) override {
        const QORStatus own = QORAnswer(interface, out, visu_);
        return own < 0 ? QORBaseUnknown::QueryInterface(interface, out) : own;
    }
    QORStatus GetShape(QORGeoShape& shape) {
        shape.kind = QORGeoShape::Box;
        shape.sizes[2] = 600;
        return QOR_OK;
    }
    QORStatus GetPlace(QORGeoPlace&) { return QOR_FAILED; }

private:
    QORI3DGeoVisuTie<Block> visu_{this};
};

QORVar<QORPathElement> pathTo(QORBaseUnknown* object) {
    return QORVar<QORPathElement>::Adopt(new QORPathElement(object));
}

/// A 3D viewer on which blocks 1 to 3 can be shown.
class Showing : public testing::Test {
protected:
    Showing() { interfaces_.Append(&IID_QORI3DGeoVisu); }

    QORStatus attach(QORBaseUnknown* object, int variant = 0) {
        return manager_.AttachTo(pathTo(object).Get(), viewpoint_, interfaces_, viewer_, 0, 0, 0, 0, variant);
    }
    QORStatus detach(QORBaseUnknown* object) {
        return manager_.DetachFrom(pathTo(object).Get(), viewpoint_, interfaces_, 0);
    }
    std::string shown() const {
        std::string text;
        for (const QORBaseUnknown_var& object : manager_.GetShown(*viewpoint_)) {
            text += recording::numberOf(*object.Get()) + " ";
        }
        return text;
    }

    Log log_;
    Toolkit toolkit_{log_};
    QORVisManager& manager_ = *QORVisManager::GetVisManager();
    QORListInterfaceID interfaces_;
    Block one_{1};
    Block two_{2};
    Block three_{3};
    QORXSO set_;
    std::unique_ptr<Stage> stage_ = std::make_unique<Stage>();
    QORViewer* viewer_ = new QORNavigation3DViewer(stage_.get(), "V", kQORViewerNavigated, 150, 200, kQORViewerScene);
    QORViewpoint* viewpoint_ = viewer_->GetMain3DViewpoint();
};

TEST_F(Showing, IsASetInTheOrderOfAttaching) {
    for (Block* block : {&two_, &one_, &two_}) {
        EXPECT_EQ(attach(block), QOR_OK);
    }
    EXPECT_EQ(shown(), "2 1 ");
    EXPECT_EQ(log_.take(), "QOR3DViewpoint added at 0 | shown 2 | shown 1");
    EXPECT_EQ(detach(&two_), QOR_OK);
    EXPECT_LT(detach(&two_), 0);
    EXPECT_EQ(shown(), "1 ");
    EXPECT_EQ(log_.take(), "hidden 2");
}

TEST_F(Showing, GoesByTheImplementation) {
    const QORI3DGeoVisu_var visu(&one_);
    EXPECT_EQ(attach(visu.Get()), QOR_OK);
    EXPECT_TRUE(manager_.IsShown(&one_, *viewpoint_));
    EXPECT_EQ(detach(&one_), QOR_OK);
    EXPECT_FALSE(manager_.IsShown(visu.Get(), *viewpoint_));
}

TEST_F(Showing, TellsPathsApartByAllThatIsOnThem) {
    const auto inside = pathTo(&one_);
    inside->AddChildElement(&two_, 0);
    EXPECT_EQ(manager_.AttachTo(inside.Get(), viewpoint_, interfaces_, viewer_, 0, 0, 0, 0, 0), QOR_OK);
    EXPECT_EQ(attach(&two_), QOR_OK);
    EXPECT_EQ(shown(), "2 2 ");
    EXPECT_EQ(detach(&two_), QOR_OK);
    EXPECT_EQ(shown(), "2 ");
    EXPECT_FALSE(manager_.IsShown(&two_, *viewpoint_));
}

TEST_F(Showing, RefusesWhatItCannotShow) {
    QORBaseUnknown shapeless;
    auto* const other = new QORNavigation2DViewer(stage_.get(), "flat", 0, 10, 10, kQORViewerPlain);
    log_.take();
    EXPECT_LT(attach(nullptr), 0) << "an empty path";
    EXPECT_LT(attach(&shapeless), 0) << "doesn't answer the interface";
    EXPECT_LT(attach(&one_, 1), 0) << "no such variant";
    EXPECT_LT(manager_.AttachTo(pathTo(&one_).Get(), nullptr, interfaces_, viewer_, 0, 0, 0, 0, 0), 0);
    EXPECT_LT(manager_.AttachTo(pathTo(&one_).Get(), viewpoint_, interfaces_, nullptr, 0, 0, 0, 0, 0), 0);
    EXPECT_LT(manager_.AttachTo(pathTo(&one_).Get(), viewpoint_, interfaces_, other, 0, 0, 0, 0, 0), 0);
    EXPECT_LT(detach(&one_), 0);
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(log_.take(), "");
}

TEST_F(Showing, TiesSetsAndTellsTheViewerWhatIsInThem) {
    log_.take();
    EXPECT_EQ(manager_.AttachHSOTo(&set_, viewpoint_), QOR_OK);
    EXPECT_EQ(manager_.AttachHSOTo(&set_, viewpoint_), QOR_OK);
    EXPECT_EQ(manager_.AttachPSOTo(&set_, viewpoint_), QOR_OK);
    EXPECT_EQ(log_.take(), "sets 0 none | sets 0 0");
    EXPECT_EQ(set_.AddElement(pathTo(&one_).Get()), QOR_OK);
    EXPECT_LT(set_.AddElement(pathTo(&one_).Get()), 0);
    EXPECT_EQ(manager_.DetachPSOFrom(viewpoint_), QOR_OK);
    EXPECT_EQ(manager_.DetachHSOFrom(viewpoint_), QOR_OK);
    EXPECT_EQ(log_.take(), "sets 1 1 | sets 1 none | sets none none");
}

TEST_F(Showing, FailsToTieNothingAndToUntieWhatIsNotTied) {
    EXPECT_LT(manager_.AttachHSOTo(nullptr, viewpoint_), 0);
    EXPECT_LT(manager_.AttachPSOTo(nullptr, viewpoint_), 0);
    EXPECT_LT(manager_.AttachHSOTo(&set_, nullptr), 0);
    EXPECT_LT(manager_.AttachPSOTo(&set_, nullptr), 0);
    EXPECT_LT(manager_.DetachHSOFrom(viewpoint_), 0);
    EXPECT_LT(manager_.DetachPSOFrom(nullptr), 0);
}

TEST_F(Showing, PutsWhatWasPickedIntoThePSO) {
    viewer_->ReportPick(*viewpoint_, &one_);
    EXPECT_EQ(set_.GetSize(), 0) << "no set is tied yet";
    manager_.AttachPSOTo(&set_, viewpoint_);
    viewer_->ReportPick(*viewpoint_, &one_);
    viewer_->ReportPick(*viewpoint_, &two_);
    EXPECT_EQ(set_.GetSize(), 1);
    EXPECT_TRUE(set_.Contains(&two_));
    viewer_->ReportPick(*viewpoint_, nullptr);
    EXPECT_EQ(set_.GetSize(), 0);
}

TEST_F(Showing, ForgetsASetThatEnds) {
    auto* const brief = new QORXSO();
    manager_.AttachHSOTo(brief, viewpoint_);
    manager_.AttachPSOTo(brief, viewpoint_);
    brief->Release();
    EXPECT_EQ(manager_.GetHSO(*viewpoint_), nullptr);
    EXPECT_EQ(manager_.GetPSO(*viewpoint_), nullptr);
}

TEST_F(Showing, LetsObjectsGoWithTheViewer) {
    const QORVar<QORViewpoint> kept(viewpoint_);
    attach(&one_);
    manager_.AttachHSOTo(&set_, viewpoint_);
    EXPECT_EQ(one_.GetReferenceCount(), 2);
    log_.take();
    stage_.reset();
    EXPECT_EQ(one_.GetReferenceCount(), 1);
    EXPECT_EQ(manager_.GetShownCount(*kept.Get()), 0);
    EXPECT_EQ(kept->GetViewer(), nullptr);
    EXPECT_EQ(log_.take(), "viewer gone");
}

TEST_F(Showing, HoldsManyObjectsInLinearTime) {
    std::vector<QORVar<Block>> blocks;
    for (int i = 0; i < 100000; ++i) {
        blocks.push_back(QORVar<Block>::Adopt(new Block(i + 1)));
        ASSERT_EQ(attach(blocks.back().Get()), QOR_OK);
    }
    for (const auto& block : blocks) {
        ASSERT_EQ(detach(block.Get()), QOR_OK);
    }
    EXPECT_EQ(shown(), "");
}

TEST_F(Showing, DrawsAndRedrawsThroughThePeer) {
    log_.take();
    QORIRedrawEvent_var(viewer_)->Redraw();
    viewer_->Draw();
    EXPECT_EQ(log_.take(), "redraw | draw");
    EXPECT_EQ(QORI3DGeoVisu_var(viewer_), nullptr);
}

TEST_F(Showing, TakesViewpointsAndEditorsOver) {
    auto* const flat = new QOR2DViewpoint();
    auto* const editor = new QOR2DPickViewpointEditor("Pick", flat, kQORPickOne);
    log_.take();
    EXPECT_LT(viewer_->SetViewpointEditor(flat, editor), 0) << "not this viewer's yet";
    EXPECT_EQ(viewer_->AddViewpoint(flat, kQORPlacementInFront), QOR_OK);
    EXPECT_LT(viewer_->AddViewpoint(flat, kQORPlacementInFront), 0);
    EXPECT_LT(viewer_->AddViewpoint(nullptr, kQORPlacementInFront), 0);
    EXPECT_LT(viewer_->SetViewpointEditor(flat, nullptr), 0);
    EXPECT_EQ(viewer_->SetViewpointEditor(flat, editor), QOR_OK);
    EXPECT_EQ(log_.take(), "QOR2DViewpoint added at 1 | editor Pick");
    EXPECT_EQ(viewer_->GetViewpoint(2), flat);
    EXPECT_EQ(viewer_->GetViewpoint(3), nullptr);
    EXPECT_EQ(editor->GetViewpoint(), flat);
    EXPECT_EQ(viewer_->GetViewpointEditor(viewpoint_), nullptr);
}

TEST_F(Showing, HasNoMainViewpointInAPlaneOrOnAToolkitWithoutSpace) {
    EXPECT_EQ(QORNavigation2DViewer(nullptr, "flat", 0, 1, 1, kQORViewerPlain).GetMain3DViewpoint(), nullptr);
    toolkit_.refuseViewers();
    EXPECT_EQ(QORNavigation3DViewer(nullptr, "dark", 0, 1, 1, kQORViewerScene).GetMain3DViewpoint(), nullptr);
    QORSetToolkit(nullptr);
    EXPECT_NE(QORNavigation3DViewer(nullptr, "headless", 0, 1, 1, kQORViewerScene).GetMain3DViewpoint(), nullptr);
}

TEST_F(Showing, HasTheSizeOfItsConstructionUntilAPeerKnowsBetter) {
    float width = 0;
    float height = 0;
    viewer_->GetGraphicSize(width, height);
    EXPECT_EQ(std::to_string(width) + "x" + std::to_string(height), "150.000000x200.000000");
    viewer_->SetGraphicSize(80.5F, 20);
    viewer_->GetGraphicSize(width, height);
    EXPECT_EQ(std::to_string(width) + "x" + std::to_string(height), "80.500000x20.000000");
}

TEST(PathElement, GrowsAtThePositionGiven) {
    Block one(1);
    Block two(2);
    Block three(3);
    const auto path = pathTo(nullptr);
    EXPECT_EQ(path->GetSize(), 0);
    path->AddChildElement(&two, 0);
    path->AddChildElement(&three, 9);
    path->AddChildElement(QORI3DGeoVisu_var(&one).Get(), 1);
    path->AddChildElement(nullptr, 1);
    EXPECT_EQ(path->GetImplementations(), (std::vector<QORBaseUnknown*>{&one, &two, &three}));
    EXPECT_EQ(path->GetElement(1), QORBaseUnknown_var(&one));
    EXPECT_EQ(path->GetElement(0), nullptr);
    EXPECT_EQ(path->GetElement(4), nullptr);
    EXPECT_EQ(two.GetReferenceCount(), 2);
}

TEST(SelectionSet, LosesWhatItIsToldToLose) {
    Block one(1);
    QORXSO set;
    set.AddElement(pathTo(&one).Get());
    EXPECT_LT(set.AddElement(nullptr), 0);
    EXPECT_LT(set.RemoveElement(pathTo(nullptr).Get()), 0);
    EXPECT_EQ(set.GetElement(1).Get(), &one);
    EXPECT_EQ(set.RemoveElement(pathTo(QORI3DGeoVisu_var(&one).Get()).Get()), QOR_OK);
    EXPECT_LT(set.RemoveElement(pathTo(&one).Get()), 0);
    EXPECT_EQ(set.GetElement(1), nullptr);
}

TEST(GeoVisu, GivesShapeAndPlaceThroughItsForwarder) {
    Block block(1);
    const QORI3DGeoVisu_var visu(&block);
    QORGeoShape shape;
    QORGeoPlace place{{1, 2, 3}, {90, 0, 0}};
    EXPECT_EQ(visu->GetShape(shape), QOR_OK);
    EXPECT_EQ(shape.kind, QORGeoShape::Box);
    EXPECT_EQ(shape.sizes[2], 600);
    EXPECT_LT(visu->GetPlace(place), 0);
    EXPECT_EQ(place.turned[0], 90);
}

} // namespace
