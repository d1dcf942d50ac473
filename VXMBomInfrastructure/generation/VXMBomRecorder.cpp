#include "VXMBomInfrastructure/generation/VXMBomRecorder.h"

VXMBomRecorder::VXMBomRecorder() = default;

VXMBomRecorder::~VXMBomRecorder() = default;

unsigned char VXMBomRecorder::WantsEveryNode() {
    return 1;
}
