#include "platform/browser.h"

#include <QDesktopServices>
#include <QUrl>

namespace
{
std::function<bool(const QString&)>& Browser()
{
    static std::function<bool(const QString&)> browser;
    return browser;
}
} // namespace

bool OpenInBrowser(const QString& address)
{
    return Browser() ? Browser()(address) : QDesktopServices::openUrl(QUrl(address));
}

void SetBrowser(std::function<bool(const QString& address)> browser)
{
    Browser() = std::move(browser);
}
