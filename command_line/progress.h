// How far a run over several inputs has come.
#pragma once

#include <cstddef>
#include <mutex>
#include <string>

namespace ov1
{

class console;

enum class progress_style
{
    automatic, ///< a bar on a terminal, else nothing
    plain,     ///< a line for each input
    json,      ///< a JSON object on a line for each input
    none,
};

/// Reports each input that is done. Any thread. A bar is gone when the report ends.
class progress
{
public:
    /// For so many inputs. Whether stderr is a terminal is the caller's to know.
    progress(console& out, progress_style style, bool is_terminal, std::size_t total);
    ~progress();
    progress(const progress&) = delete;
    progress& operator=(const progress&) = delete;

    /// Another input is done, well or not.
    void step(const std::string& input, bool succeeded);

private:
    enum class form
    {
        bar,
        plain,
        json,
        none,
    };

    console& out;
    form shown;
    std::size_t total;
    std::mutex mutex;
    std::size_t done = 0;
};

/// "[=====>    ] 3 of 6", so many cells wide between its brackets.
std::string progress_bar(std::size_t done, std::size_t total, std::size_t cells);

} // namespace ov1
