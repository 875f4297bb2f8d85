#pragma once

#include "calendar/frm_main_command_table.h"

#include <QFrame>

class QToolButton;

/// The tools as images with a word below. Each has a twin, "..._DISABLED", that stands in its place while it may not be
/// used. Under the mouse a larger copy, imgZoom, covers a tool and takes the click.
class ToolBar : public QFrame
{
public:
    explicit ToolBar(QWidget* parent = nullptr);

    std::function<void(const Command&)> Chosen; ///< a tool was clicked

    /// Shows the tools that are to be seen, and enables them by their rules.
    void ActivateAllowed();
    /// Disables all tools. The one in use looks so, and stays usable where a second click ends it; "" for none.
    void Deactivate(const QString& toolInUse, bool usable);
    /// So many things wait behind a tool: they stand behind its word; 0 for none.
    void ShowWaiting(const char* tool, int count);
    /// The tool can be seen and used.
    bool Shows(const char* name) const;

    /// Without the words below the images, where there is no room for them.
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* target, QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Tool
    {
        const Command& Of;
        QToolButton* Image;
        QToolButton* Disabled;
        QFrame* Line;    ///< parts it from the tools before it; null for none
        int Waiting = 0; ///< so many things wait behind it
    };

    void AddShortcut(const Tool& tool);
    static QToolButton* MakeImage(const Command& command, const QString& name);
    static void SetTool(const Tool& tool, bool enabled, bool inUse, const Text& why);
    static QString WordOf(const Tool& tool);
    void FitWords();
    void PartGroups();
    void ShowZoom(const Tool& tool);
    void FollowZoomed();
    void ShowWords(bool shown);
    int WidthWithWords() const;

    std::vector<Tool> tools_;
    const Command* hovered_ = nullptr; ///< the tool under imgZoom
    QToolButton* imgZoom = nullptr;
};
