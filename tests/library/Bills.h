#pragma once

#include "support/BomText.h"
#include "support/Drawing.h"

#include "process/VXMProcessBomGenerator.h"
#include "resource/VXMResourceBomGenerator.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

/// What the tables of this folder share.
namespace testmodel {

enum class Root { Process, Resource };
enum class Algorithm { Present, Older };

inline Thing& draw(World& world, Root kind, const char* drawing) {
    return kind == Root::Process ? drawPlan(world, drawing) : drawResource(world, drawing);
}

/// A generator for the root, as the environment variable makes it.
inline std::unique_ptr<VXMBomGenerator> makeGenerator(Thing& root, Root kind, Algorithm algorithm) {
    const Environment environment("FAB_BOM_OLD_ALGORITHM", algorithm == Algorithm::Older ? "TRUE" : nullptr);
    if (kind == Root::Process) {
        return std::make_unique<VXMProcessBomGenerator>(handle(root));
    }
    return std::make_unique<VXMResourceBomGenerator>(handle(root));
}

/// Changes a drawn model where the drawing can't say it.
using Change = std::function<void(World&)>;

inline void apply(const Change& change, World& world) {
    if (change) {
        change(world);
    }
}

/// A row of a table: a drawn plan and its bill.
struct BillRow {
    const char* name;
    const char* drawing;
    const char* bom;
    Change change = nullptr;
};

inline std::string rowName(const testing::TestParamInfo<BillRow>& info) {
    return info.param.name;
}

inline void PrintTo(const BillRow& row, std::ostream* out) {
    *out << row.drawing;
}

/// Tests of rows for one kind of root and one algorithm.
template <Root kind, Algorithm algorithm>
class BillTable : public testing::TestWithParam<BillRow> {
protected:
    std::string bill() const {
        World world;
        Thing& root = draw(world, kind, GetParam().drawing);
        apply(GetParam().change, world);
        return bomText(makeGenerator(root, kind, algorithm)->GetBom(0));
    }
};

} // namespace testmodel
