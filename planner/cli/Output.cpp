#include "planner/cli/Output.h"

#include "planner/cli/Interrupt.h"
#include "planner/cli/RunProgress.h"

#include <cstring>
#include <filesystem>
#include <unistd.h>

namespace planner {

Output::Output(const std::string& path) : path_(path) {
    if (path != "-") {
        file_ = std::make_unique<FileReplacement>(path);
        removeWhenInterrupted(file_->temporaryPath());
    }
    sink_ = std::make_unique<TextSink>(file_ ? file_->descriptor() : STDOUT_FILENO);
}

Output::~Output() {
    removeWhenInterrupted({});
}

TextSink& Output::sink() {
    RunProgress::phase(file_ ? "writing" : nullptr);
    return *sink_;
}

std::unique_ptr<Output> Output::open(const Arguments& arguments) {
    std::unique_ptr<Output> output(new Output(arguments.value("--output").value_or("-")));
    if (const auto error = output->file_ ? output->file_->error() : std::nullopt) {
        complain(output->path_ + ' ' + *error);
        return nullptr;
    }
    return output;
}

std::unique_ptr<Output> Output::openBeside(const Arguments& arguments) {
    const auto path = arguments.value("--output");
    if (path && isSameFile(*path, arguments.text("PLAN"))) {
        complain("--output names the plan itself; expected another file");
        return nullptr;
    }
    return open(arguments);
}

Status Output::finish(const std::optional<std::string>& wrong) {
    if (wrong) {
        complain(path_ + ' ' + *wrong);
        return Status::Bad;
    }
    const int error = sink_->finish();
    if (!file_) {
        return endOfOutput(error);
    }
    if (const auto message = file_->commit(error)) {
        complain(path_ + ' ' + *message);
        return Status::Bad;
    }
    return Status::Good;
}

bool isSameFile(const std::string& left, const std::string& right) {
    std::error_code missing;
    return std::filesystem::equivalent(left, right, missing) && !missing;
}

Status endOfOutput(int error) {
    if (error == 0) {
        return Status::Good;
    }
    complain(std::string("standard output can't be written: ") + std::strerror(error));
    return Status::Bad;
}

} // namespace planner
