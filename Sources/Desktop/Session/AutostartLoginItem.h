#pragma once

#include "NotchKit/Platform/LoginItem.h"

namespace Kestrune {

/// The login item as an autostart entry in the user's configuration folder.
class AutostartLoginItem : public LoginItem
{
public:
    /// `executable`: absolute path of the program that the entry starts.
    explicit AutostartLoginItem(const QString &executable);

    bool isEnabled() const override;
    std::optional<QString> setEnabled(bool enabled) override;

    /// Writes the entry anew where it names a program that is gone: the user moved this one.
    void repair();

private:
    QString m_executable;
    QString m_path;
};

} // namespace Kestrune
