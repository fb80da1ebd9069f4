#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <cstdint>

struct xcb_connection_t;

namespace quillon {

/// Knows whether a tray of the XEmbed protocol is on the X11 display: whether somebody owns the selection that stands
/// for it. On other platforms there is none. Main thread only.
class XEmbedHostWatcher final : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    XEmbedHostWatcher();
    ~XEmbedHostWatcher() override;

    bool isPresent() const { return present_; }

Q_SIGNALS:
    /// Emitted from the event loop, never from within the handling of an X11 event.
    void changed();

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;
    bool watchSelection();
    void setPresent(bool present);

    xcb_connection_t* connection_;
    std::uint32_t selection_ = 0;
    std::uint8_t selectionNotify_ = 0; ///< event number of the extension's notice
    bool present_ = false;
};

} // namespace quillon
