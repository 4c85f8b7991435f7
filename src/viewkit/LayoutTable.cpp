#include "LayoutTable.h"

#include "Button.h"

#include <QByteArray>
#include <QList>

namespace Layout {

namespace {
QString str(const char* s) {
    return s ? QString::fromUtf8(s) : QString();
}
} // namespace

void SetCaption(NSImageViewS* view, const Caption& caption) {
    if (!view || !caption.text) return;
    view->InitText(str(caption.text), caption.color, 0, caption.loc, QString::fromLatin1(kFontName),
                   caption.size);
}

NSImageViewS* MakeView(NSViewS* parent, const Row& row) {
    auto* view = new NSImageViewS(row.frame);
    if (row.hidden) view->setHidden(true);
    const bool hasPicture = row.up != nullptr;
    view->InitImage(str(row.up), hasPicture ? str(row.type) : QString(), static_cast<int>(row.frame.width),
                    static_cast<int>(row.frame.height), parent);
    SetCaption(view, row.caption);
    return view;
}

Button* MakeButton(NSViewS* parent, const Row& row, void* context) {
    auto* button = new Button(row.frame);
    if (row.name) button->setAccessibleName(str(row.name));
    if (row.hidden) button->setHidden(true);
    button->InitImage(str(row.up), str(row.move), str(row.down), str(row.type), parent);
    SetCaption(button, row.caption);
    void* to = context ? context : parent;
    if (row.action) button->InitButtonAction(row.action, to);
    if (row.entered) button->InitButtonEntered(row.entered, to);
    if (row.exited) button->InitButtonExited(row.exited, to);
    return button;
}

Row SilverButton(Button** field, NSRect frame, Caption caption, bool hidden, ButtonCallback action) {
    return {.button = field,
            .frame = frame,
            .up = "but_common_BtnSilver",
            .move = "but_common_over_BtnSilver",
            .down = "but_common_over_BtnSilver",
            .caption = caption,
            .hidden = hidden,
            .action = action};
}

Row HelpButton(Button** field, NSRect frame) {
    return {.button = field,
            .frame = frame,
            .up = "but_question",
            .move = "but_question_over",
            .down = "but_question_over",
            .name = "Help"};
}

Row Family(Button** field, NSRect frame, const char* base, const char* up, const char* move, const char* down,
           const char* name, Caption caption, ButtonCallback action) {
    // The names live as long as the application: a table builds once, and pictures are looked
    // up by name only while it builds.
    static QList<QByteArray> names;
    const auto join = [base](const char* suffix) {
        names.append(QByteArray(base) + suffix);
        return names.constLast().constData();
    };
    return {.button = field,
            .frame = frame,
            .up = join(up),
            .move = join(move),
            .down = join(down),
            .caption = caption,
            .name = name,
            .action = action};
}

void BuildTabs(NSViewS* parent, const TabStrip& strip, void* context) {
    struct TabLook {
        const char* picture;
        const char* name;
    };
    static const TabLook looks[kTabCount] = {{"movement", "Movement tab"},
                                             {"sound", "Sound tab"},
                                             {"lazer", "Laser tab"},
                                             {"face", "Face tab"},
                                             {"play", "Play"}};
    for (int i = 0; i < kTabCount; ++i) {
        const char* up = static_cast<int>(strip.current) == i ? "_over" : "";
        *strip.fields[i] =
            MakeButton(parent,
                       Family(strip.fields[i], MakeNSRect(strip.x[i], strip.y, 64, 63), looks[i].picture, up,
                              "_over", "_over", looks[i].name, {}, strip.actions[i]),
                       context);
    }
}

namespace {
template <typename Rows> void BuildRows(NSViewS* parent, const Rows& rows, void* context) {
    for (const Row& row : rows) {
        if (row.button)
            *row.button = MakeButton(parent, row, context);
        else if (row.image)
            *row.image = MakeView(parent, row);
        else
            MakeView(parent, row); // decoration nobody refers to again; owned by the parent
    }
}
} // namespace

void Build(NSViewS* parent, std::initializer_list<Row> rows, void* context) {
    BuildRows(parent, rows, context);
}

void BuildEditor(NSViewS* screen, const Editor& editor, const QList<Row>& underTabs,
                 const QList<Row>& overTabs) {
    Build(screen, {{.image = editor.background, .frame = MakeNSRect(0, 0, 1024, 768), .up = "scenario_bg"}});
    BuildRows(screen, underTabs, nullptr);
    if (editor.help) Build(screen, {HelpButton(editor.help, MakeNSRect(57, 37, 29, 28))});
    BuildTabs(screen, editor.tabs);
    BuildRows(screen, overTabs, nullptr);
    Build(screen, {editor.back});
}

} // namespace Layout
