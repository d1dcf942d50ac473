#pragma once

#include "planner/cli/Arguments.h"
#include "planner/file/FileReplacement.h"
#include "planner/file/TextSink.h"

#include <memory>

namespace planner {

/// Where a command writes: the file of its --output, which appears under its name only when it is complete, or standard
/// output, which "-" stands for as well.
class Output {
public:
    /// Opens what the arguments name; null after saying what is wrong.
    static std::unique_ptr<Output> open(const Arguments& arguments);

    /// The same for a command that reads a plan and doesn't write one: its file isn't to be overwritten.
    static std::unique_ptr<Output> openBeside(const Arguments& arguments);

    ~Output();
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    /// Where the text goes. What is written to standard output isn't to be mixed with progress, which ends here.
    TextSink& sink();

    /// Where a writer that opens files itself is to write; empty for standard output. It takes the place of the sink.
    std::string writtenPath() const { return file_ ? file_->writtenPath() : std::string(); }

    /// Puts the file in place. Tells what went wrong, first of all what such a writer gave as wrong.
    Status finish(const std::optional<std::string>& error = {});

private:
    explicit Output(const std::string& path);

    std::string path_;
    std::unique_ptr<FileReplacement> file_; // null for standard output
    std::unique_ptr<TextSink> sink_;
};

/// Whether two paths lead to one file; two of which one leads nowhere are two.
bool isSameFile(const std::string& left, const std::string& right);

/// Ends the output on standard output: tells a write error, if there was one, by its number.
Status endOfOutput(int error);

} // namespace planner
