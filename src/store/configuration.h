// The settings between two runs: a text of ten lines, whose order is its format.
#pragma once

#include "kit/message_box.h"
#include "table/module1.h"

#include <string>
#include <string_view>

namespace tessarine
{

class Configuration
{
public:
    Configuration(Platform& platform, Module1& shared, MsgForm& messages)
        : platform_(platform), shared_(shared), messages_(messages)
    {
    }

    /// Reads "tessarine.cfg" of the program's folder into the shared variables. A file that is missing
    /// or ends early is told, and replaced by one of new values, which then also hold.
    void ReadcfgFile();
    /// Writes the shared variables there. A failure is told.
    void SavecfgFile();

private:
    std::string Path() const;
    std::string Text() const;
    void SetNewValues();
    void Complain(std::string_view consequence);

    Platform& platform_;
    Module1& shared_;
    MsgForm& messages_;
};

} // namespace tessarine
