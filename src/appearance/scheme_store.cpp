#include "appearance/scheme_store.h"

#include "appearance/scheme_file.h"
#include "runtime/files.h"
#include "runtime/letters.h"

namespace tessarine
{

SchemeStore::SchemeStore(Module1& module, MsgForm& messageBox)
    : platform_(messageBox.platform()), module_(module), messageBox_(messageBox)
{
}

void SchemeStore::ReadScheme(const std::string& name)
{
    const FileResult file = ReadText();
    if (file && ReadEntry(file.text, name, SlotSource::Derived, module_)) {
        return;
    }
    messageBox_.MsgboxA("Colour Scheme: " + name + " not found", "vbcritical", -1, -1);
    platform_.RunPendingEvents();
    module_.SchemeFile = DefaultScheme;
}

Colour SchemeStore::PreviewScheme(const std::string& name)
{
    if (LowerCase(name) == DefaultScheme) {
        static constexpr std::size_t lightEdgeSlot = 3;
        const Colour ofLists = TranslateColor(WindowBackground);
        module_.SchemeColors[BackgroundSlot] = ofLists;
        module_.SchemeColors[ButtonSlot] = ofLists;
        module_.SchemeColors[lightEdgeSlot] = Black;
        return ofLists;
    }
    const FileResult file = ReadText();
    if (file && ReadEntry(file.text, name, SlotSource::File, module_)) {
        return module_.Background();
    }
    platform_.PlainMessage("Color Scheme: " + name + " not found", PlainButtons::Ok);
    module_.SchemeFile = DefaultScheme;
    return Black;
}

FileResult SchemeStore::ReadText() const
{
    return platform_.ReadFile(module_.AllColFile);
}

bool SchemeStore::AddEntry(const std::string& nameLine) const
{
    FileResult file = ReadText();
    // A file that can't be read must not be written over, nor one that was gone for a moment only.
    if (!file && ReadText().fault != FileFault::Missing) {
        return false;
    }
    return ReplaceFile(platform_, module_.AllColFile,
                       WithEntryAdded(std::move(file.text), EntryText(nameLine, module_))) ==
           FileFault::None;
}

bool SchemeStore::ReplaceEntry(const std::string& nameLine) const
{
    return RewriteEntry(nameLine, EntryText(nameLine, module_));
}

bool SchemeStore::DeleteEntry(const std::string& nameLine) const
{
    return RewriteEntry(nameLine, {});
}

bool SchemeStore::RewriteEntry(const std::string& nameLine, const std::string& entry) const
{
    const FileResult file = ReadText();
    return file && StoreByWayOfCopy(WithEntryReplaced(file.text, nameLine, entry));
}

bool SchemeStore::StoreByWayOfCopy(const std::optional<std::string>& changed) const
{
    const std::string copy = module_.AppDir + "newall.cox";
    return changed && ReplaceFile(platform_, copy, *changed) == FileFault::None &&
           CopyFile(platform_, copy, module_.AllColFile) == FileFault::None;
}

} // namespace tessarine
