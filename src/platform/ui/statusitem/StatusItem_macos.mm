#include "StatusItem.h"

#include <QGuiApplication>
#include <QMenu>

#import <AppKit/AppKit.h>

namespace quillon {

namespace {

NSColor* systemColor(SymbolColor color)
{
    switch (color) {
    case SymbolColor::SystemGreen:
        return NSColor.systemGreenColor;
    case SymbolColor::SystemOrange:
        return NSColor.systemOrangeColor;
    case SymbolColor::SystemYellow:
        return NSColor.systemYellowColor;
    }
    Q_UNREACHABLE();
}

/// Nothing on systems before macOS 11, which have no symbols.
NSImage* systemSymbol(const SymbolImage& symbol)
{
    NSImage* image = nil;
    if (@available(macOS 11.0, *))
        image = [NSImage imageWithSystemSymbolName:symbol.name.toNSString() accessibilityDescription:nil];
    if (@available(macOS 12.0, *)) {
        if (symbol.paletteColor) {
            NSColor* color = systemColor(*symbol.paletteColor);
            image = [image imageWithSymbolConfiguration:[NSImageSymbolConfiguration
                                                            configurationWithPaletteColors:@[ color, color ]]];
        }
    }
    if (symbol.isTemplate) // system symbols are templates by default; this only adds the mark
        [image setTemplate:YES];
    return image;
}

NSAttributedString* attributedString(const AttributedTitle& title)
{
    NSMutableParagraphStyle* paragraph = [[NSMutableParagraphStyle alloc] init];
    paragraph.paragraphSpacing = title.paragraphSpacing;
    paragraph.alignment = NSTextAlignmentRight;
    return [[NSAttributedString alloc] initWithString:title.text.toNSString()
                                           attributes:@{
                                               NSFontAttributeName : [NSFont systemFontOfSize:title.pointSize],
                                               NSParagraphStyleAttributeName : paragraph,
                                               NSBaselineOffsetAttributeName : @(title.baselineOffset),
                                           }];
}

class MacStatusItem final : public StatusItem {
public:
    MacStatusItem()
        : item_([NSStatusBar.systemStatusBar statusItemWithLength:NSVariableStatusItemLength])
        // App Nap would stretch the timers of an application without a window; sleep stays the system's decision.
        , activity_([NSProcessInfo.processInfo beginActivityWithOptions:NSActivityUserInitiatedAllowingIdleSystemSleep
                                                                 reason:@"Starts backups on schedule"])
    {
        item_.button.imagePosition = NSImageRight;
        label({});
    }
    ~MacStatusItem() override
    {
        [NSProcessInfo.processInfo endActivity:activity_];
        [NSStatusBar.systemStatusBar removeStatusItem:item_];
    }

    void setFontSize(double pointSize) override { item_.button.font = [NSFont systemFontOfSize:pointSize]; }

    void setTitle(const QString& title) override
    {
        item_.button.title = title.toNSString();
        label(title);
    }

    void setAttributedTitle(const AttributedTitle& title) override
    {
        item_.button.attributedTitle = attributedString(title);
        label(title.text);
    }

    void setImage(const std::optional<SymbolImage>& image) override
    {
        item_.button.image = image ? systemSymbol(*image) : nil;
        description_ = image ? image->description : QString();
        label(title_);
    }

    void setMenu(QMenu* menu) override { item_.menu = menu ? menu->toNSMenu() : nil; }

    PopoverAnchor anchor() const override
    {
        NSWindow* window = item_.button.window;
        if (!window)
            return {};
        const NSRect button = [window convertRectToScreen:[item_.button convertRect:item_.button.bounds toView:nil]];
        // NSScreen.h: the first screen has the origin, and y grows upward from its lower edge.
        const CGFloat top = NSMaxY(NSScreen.screens.firstObject.frame) - NSMaxY(button);
        return {nullptr, QRectF(NSMinX(button), top, NSWidth(button), NSHeight(button)).toRect()};
    }

private:
    void label(const QString& text)
    {
        title_ = text;
        const QString name = text.isEmpty() ? QGuiApplication::applicationDisplayName() : text;
        const QString spoken = description_.isEmpty() ? name : name + u'\n' + description_;
        [item_.button setAccessibilityLabel:spoken.toNSString()];
    }

    QString title_;
    QString description_;

    NSStatusItem* item_;
    id<NSObject> activity_;
};

} // namespace

std::unique_ptr<StatusItem> makeStatusItem(StatusItemPlacement /*placement*/)
{
    return std::make_unique<MacStatusItem>();
}

} // namespace quillon
