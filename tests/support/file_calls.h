#pragma once

#include <array>
#include <functional>

/// The calls that the data engine makes on the file system: on a network share each costs a way to the server.
enum class FileCall
{
    Open, ///< and close
    Look, ///< at a file's name: is it there, is it still the same
    Size,
    Read,
    Write,
    Sync,
    Lock, ///< and unlock
    Remove
};
constexpr int kFileCalls = 8;

/// While it lives the engine's calls on the files that are opened are counted, and fail where a test wants it. It
/// closes the program's database when it comes and when it goes.
class FileCalls
{
public:
    FileCalls();
    ~FileCalls();
    FileCalls(const FileCalls&) = delete;
    FileCalls& operator=(const FileCalls&) = delete;

    /// The calls since the last time, of one kind and of all.
    void StartCounting();
    int Of(FileCall kind) const;
    int All() const;

    /// From here on the `nth` call of that kind, counted from 1, fails with the engine's `code`, and if `forGood` all
    /// calls of files that are open then.
    void Fail(FileCall kind, int nth, int code, bool forGood = false);
    void Recover();
    /// Whether the call that was to fail has come.
    bool HasFailed() const;
};
