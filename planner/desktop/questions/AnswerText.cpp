// The writers of the command line know a terminal's colours and nothing of links. What stands in the style of names is
// looked up in the plan: by the id in brackets behind it, else as an id itself.

#include "planner/desktop/questions/AnswerText.h"

#include "planner/model/Plan.h"
#include "planner/text/StyledText.h"

#include <QApplication>
#include <QPalette>
#include <QUrl>

#include <vector>

namespace planner::desktop {

namespace {

/// A piece of text with the number of its terminal style, 0 for none.
struct Piece {
    int style;
    std::string text;
};

constexpr int kBold = 1;
constexpr int kId = 2;
constexpr int kGone = 31;
constexpr int kAdded = 32;
constexpr int kWarning = 33;
constexpr int kName = 36;

std::vector<Piece> piecesOf(const std::string& text) {
    std::vector<Piece> pieces{{0, {}}};
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t next = text.find('\x1B', at);
        pieces.back().text += text.substr(at, next - at);
        if (next == std::string::npos) {
            break;
        }
        const std::size_t end = text.find('m', next);
        pieces.push_back({std::stoi(text.substr(next + 2, end - next - 2)), {}});
        at = end + 1;
    }
    std::erase_if(pieces, [](const Piece& piece) { return piece.text.empty(); });
    return pieces;
}

bool isDark() {
    constexpr int kHalf = 128;
    return QApplication::palette().color(QPalette::Base).lightness() < kHalf;
}

QString styleOf(int style) {
    switch (style) {
    case kBold:
        return "font-weight:bold";
    case kAdded:
        return isDark() ? "color:#7fd08a" : "color:#1e7a33";
    case kGone:
        return isDark() ? "color:#ff8f86" : "color:#b3261e";
    case kWarning:
        return isDark() ? "color:#f0c05a" : "color:#8a5a00";
    case kId:
        return "color:" + QApplication::palette().color(QPalette::PlaceholderText).name();
    default:
        return {};
    }
}

/// The id in " (bolt-7)"; nothing in any other text.
std::string bracketed(const Piece& piece) {
    const std::string& text = piece.text;
    const bool isId = piece.style == kId && text.size() > 3 && text.starts_with(" (") && text.ends_with(')');
    return isId ? text.substr(2, text.size() - 3) : std::string();
}

QString anchor(const ModelObject& object, const std::string& text) {
    return "<a href=\"#" + QString::fromUtf8(QUrl::toPercentEncoding(QString::fromStdString(object.id()))) + "\">" +
           plainText(text) + "</a>";
}

/// The object that a name with an id behind it stands for, or a path of names, which leads to its last one.
const ModelObject* objectCalled(const Plan& plan, const std::string& name, const std::string& id) {
    constexpr std::string_view kBetween = " / ";
    const std::size_t last = name.rfind(kBetween);
    const ModelObject* const object = id.empty() ? nullptr : plan.find(id);
    return object || last == std::string::npos ? object : plan.find(name.substr(last + kBetween.size()));
}

QString plainLine(const Plan& plan, const std::string& line, const std::string& id) {
    const std::size_t first = std::min(line.find_first_not_of(' '), line.size());
    const ModelObject* const object = objectCalled(plan, line.substr(first), id);
    return object ? plainText(line.substr(0, first)) + anchor(*object, line.substr(first)) : plainText(line);
}

QString richText(const Plan& plan, const Piece& piece, const std::string& id) {
    if (piece.style == kName || piece.style == kBold) {
        const ModelObject* const called = objectCalled(plan, piece.text, id);
        const ModelObject* const object = called ? called : plan.find(piece.text);
        return object ? anchor(*object, piece.text) : plainText(piece.text);
    }
    if (piece.style != 0) {
        return plainText(piece.text);
    }
    QString rich;
    for (std::size_t begin = 0, end = 0; end != std::string::npos; begin = end + 1) {
        end = piece.text.find('\n', begin);
        const bool isLast = end == std::string::npos;
        rich += plainLine(plan, piece.text.substr(begin, end - begin), isLast ? id : std::string());
        rich += isLast ? "" : "\n";
    }
    return rich;
}

} // namespace

QString plainText(const std::string& text) {
    return QString::fromStdString(text).toHtmlEscaped();
}

QString linkTo(const ModelObject& object) {
    return object.id().empty() ? plainText(object.name()) : anchor(object, object.name());
}

QString answerText(const Plan& plan, const std::function<void(TextOutput&)>& write) {
    std::string text;
    TextSink sink(text);
    TextOutput output(sink, true);
    write(output);
    sink.finish();
    const std::vector<Piece> pieces = piecesOf(text);
    QString rich = "<pre>";
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const std::string id = i + 1 < pieces.size() ? bracketed(pieces[i + 1]) : std::string();
        const QString style = styleOf(pieces[i].style);
        const QString shown = richText(plan, pieces[i], id);
        rich += style.isEmpty() ? shown : "<span style=\"" + style + "\">" + shown + "</span>";
    }
    return rich + "</pre>";
}

} // namespace planner::desktop
