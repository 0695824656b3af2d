#pragma once

#include <QString>

/// Style sheet texts that pages share.
namespace style {

/// The style of an enabled or dimmed radio.
QString radioText(bool isEnabled);

/// The style of an enabled or dimmed label. The dip switch page has colours of its own.
QString labelText(bool isEnabled);

} // namespace style
