#include "planner/desktop/widgets/Note.h"

namespace planner::desktop {

Note::Note(const QString& text, QWidget* parent) : QLabel(text, parent) {
    constexpr int kMargin = 24;
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMargin(kMargin);
    setForegroundRole(QPalette::PlaceholderText);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
}

} // namespace planner::desktop
