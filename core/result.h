#pragma once

#include <QString>

#include <optional>
#include <utility>
#include <variant>

// What went wrong: the file, the step that failed and the system's reason, in
// words a message can use as they stand. Everything in core that can fail
// returns one of these instead of showing anything.
struct Failure
{
    enum class Step {
        Open,    // the file could not be opened, or is not a file we may use
        Read,    // it opened but could not be read completely
        Create,  // a missing file could not be made
        Write,   // writing, reserving room or cutting it to length failed
        Sync,    // the bytes did not reach the disk
        PutBack, // a write failed and the old bytes could not be put back
        Copy,    // no copy could be kept
        List,    // a folder could not be listed
        Check,   // refused before anything was written
    };

    QString path;
    Step step = Step::Open;
    QString reason;
};

// A value, or the Failure that kept it from being made.
template <typename T>
class [[nodiscard]] Result
{
public:
    Result(T value)
        : state(std::move(value))
    {}
    Result(Failure failure)
        : state(std::move(failure))
    {}

    bool ok() const { return state.index() == 0; }
    explicit operator bool() const { return ok(); }

    const T &value() const & { return std::get<0>(state); }
    T &&value() && { return std::get<0>(std::move(state)); }
    const T *operator->() const { return &value(); }
    const T &operator*() const & { return value(); }

    const Failure &failure() const { return std::get<1>(state); }
    // The system's reason, or an empty string on success.
    QString reason() const { return ok() ? QString() : failure().reason; }

private:
    std::variant<T, Failure> state;
};

// Success with nothing to give, or a Failure.
template <>
class [[nodiscard]] Result<void>
{
public:
    Result() = default;
    Result(Failure failure)
        : error(std::move(failure))
    {}

    bool ok() const { return !error.has_value(); }
    explicit operator bool() const { return ok(); }

    const Failure &failure() const { return *error; }
    QString reason() const { return ok() ? QString() : error->reason; }

private:
    std::optional<Failure> error;
};

using Status = Result<void>;
