// A video host for one instance of the effect: what a real one keeps, calls and asks for, within this process.
#pragma once

#include "host/simulator/parameter_store.h"
#include "host/simulator/rgba_picture.h"

#include <CoreMedia/CMTime.h>

#include <memory>
#include <string>
#include <vector>

namespace ov1
{

/// How a frame is cut up and sent.
struct tile_options
{
    surface_format format = surface_format::half;
    std::size_t side = 512;   ///< of a square tile in pixels; 0 sends the frame whole
    std::size_t padding = 64; ///< bytes behind every row
    unsigned threads = 2;     ///< that render tiles at the same time
};

/// What the effect answered with its last NO.
struct host_error
{
    long code = 0;
    std::string description;
};

/// Keeps an effect's parameters, finds its own interfaces by protocol when the effect asks, and calls the effect as the
/// real host may: renders from several threads, analysed frames from one of their own, and edits from the caller's.
/// currentTime during a call is that call's time, else the playhead's.
class simulated_host
{
public:
    /// Nothing is made yet. The class is looked up by its name.
    explicit simulated_host(std::string plugin_class = "fcp_wrapper_veridialfcpx_3_7_0_0");
    ~simulated_host();
    simulated_host(const simulated_host&) = delete;
    simulated_host& operator=(const simulated_host&) = delete;

    /// An interface that this host does not have, by its protocol's name, or has again.
    void refuse_interface(const std::string& protocol, bool refused = true);
    /// From now on the surfaces of frames for analysis cannot be locked, or can again.
    void refuse_analysis_locks(bool refused = true);

    /// Makes the instance and has it declare its properties and parameters. False where it refused.
    [[nodiscard]] bool create_instance(host_error& error);
    /// Tells the instance that it belongs to a document: it takes its saved state.
    void add_to_document();

    /// The instance, an object of Objective-C, as long as the host lives; null before create_instance.
    void* get_plugin() const;
    parameter_store& get_parameters();

    void set_playhead(CMTime time);
    CMTime get_playhead() const;
    /// Input time is timeline time and this many frames.
    void set_input_offset(int frames);
    /// Frames a second of the timeline, 30000/1001 until set.
    void set_rate(int numerator, int denominator);

    /// The user sets a value in the inspector. False where the store or the effect refuses.
    bool edit(std::uint32_t id, store_value value);
    /// The user's undo and redo, told to the effect like edits.
    bool undo();
    bool redo();

    /// Renders a frame at the playhead: takes the parameters over, then all tiles. False with what the effect said.
    [[nodiscard]] bool render(const rgba_picture& in, rgba_picture& out, const tile_options& options,
                              host_error& error);

    /// The frame that an analysis finds under the playhead.
    void set_frame(rgba_picture frame, surface_format format);
    /// Waits until no analysis is running; its error, or code 0.
    host_error wait_for_analysis();

    /// The NSView of the state's control, owned by the caller; null where the effect gives none. Main thread.
    void* create_view();

    /// The document as bytes, and back: values and keyframes, the state as an archive. On failure one line says why,
    /// and nothing is changed. Reading comes between create_instance and add_to_document.
    [[nodiscard]] bool write_document(std::vector<std::uint8_t>& bytes, std::string& reason) const;
    [[nodiscard]] bool read_document(const std::vector<std::uint8_t>& bytes, std::string& reason);

    struct core;

private:
    /// Tells the effect of every parameter that is not as before.
    void tell_changes(const parameters_by_id& before);

    const std::unique_ptr<core> impl;
};

} // namespace ov1
