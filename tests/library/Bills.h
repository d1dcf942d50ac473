#pragma once

#include "support/BomText.h"
#include "support/Drawing.h"

#include "VXMBomInfrastructure/process/VXMProcessBomGenerator.h"
#include "VXMBomInfrastructure/resource/VXMResourceBomGenerator.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

/// What the tables of this folder share.
namespace testmodel {

enum class Root { Process, Resource };
enum class Algorithm { Present, Legacy };

inline Thing& draw(World& world, Root kind, const char* drawing) {
    return kind == Root::Process ? drawPlan(world, drawing) : drawResource(world, drawing);
}

/// A generator for the root, as the environment variable makes it.
inline std::unique_ptr<VXMBomGenerator> makeGenerator(Thing& root, Root kind, Algorithm algorithm) {
    const Environment environment("FAB_BOM_OLD_ALGORITHM", algorithm == Algorithm::Legacy ? "TRUE" : nullptr);
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

inline Change answers(const char* name, unsigned answers) {
    return [=](World& world) {
        world[name].answers = answers;
    };
}

inline Change lacks(const char* name, unsigned answers) {
    return [=](World& world) {
        world[name].answers &= ~answers;
    };
}

/// A link to a new thing "X".
inline Change linksX(const char* name, unsigned answers) {
    return [=](World& world) {
        World::link(world[name], world.thing("X", answers));
    };
}

inline Change failingBehaviour(const char* name) {
    return [=](World& world) {
        world[name].behaviourStatus = QOR_FAILED;
    };
}

inline Change noBehaviour(const char* name) {
    return [=](World& world) {
        world[name].behaviour = nullptr;
    };
}

} // namespace testmodel
