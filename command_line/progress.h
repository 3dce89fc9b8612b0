// Progress of a run over several inputs.
#pragma once

#include <cstddef>
#include <mutex>
#include <string>

namespace ov1
{

class console;

enum class progress_style
{
    automatic, ///< a bar on a terminal, otherwise nothing
    plain,     ///< a line for each input
    json,      ///< a JSON object on a line for each input
    none,
};

/// Reports each finished input, from any thread. The destructor erases the bar.
class progress
{
public:
    /// total is the number of inputs; is_terminal says whether stderr is a terminal.
    /// The console must outlive this object. A single input gets no bar.
    progress(console& out, progress_style style, bool is_terminal, std::size_t total);
    ~progress();
    progress(const progress&) = delete;
    progress& operator=(const progress&) = delete;

    /// One more input is finished.
    void step(const std::string& input, bool succeeded);

private:
    // What is shown, once the style, the terminal and the number of inputs are known.
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

/// "[=====>    ] 3 of 6", with `cells` characters between the brackets.
/// The arrow takes one cell, unless all are full. A total of 0 counts as done; done must not exceed the total.
std::string progress_bar(std::size_t done, std::size_t total, std::size_t cells);

} // namespace ov1
