// A video host for one instance of the effect, within this process: it stores parameters and calls the effect as a real
// host does.
#pragma once

#include "host/simulator/parameter_store.h"
#include "host/simulator/rgba_picture.h"
#include "shared/result.h"

#include <CoreMedia/CMTime.h>

#include <memory>
#include <string>
#include <vector>

namespace ov1
{

/// How a frame is cut into tiles and rendered.
struct tile_options
{
    surface_format format = surface_format::half;
    std::size_t side = 512;   ///< of a square tile, in pixels; 0: one tile for the whole frame
    std::size_t padding = 64; ///< bytes after each row of a surface
    unsigned threads = 2;     ///< number of tiles rendered at the same time
};

/// Stores the effect's parameters, gives it the host's interfaces, and calls it from the threads that a real host may
/// use: renders from several threads, analysis from one of its own, edits from the caller's. During a call into the
/// effect currentTime is that call's time, else the playhead's. A failure has the description of the effect's NSError
/// as its reason.
class simulated_host
{
public:
    /// Creates no instance yet. The class is looked up by its name when one is created.
    explicit simulated_host(std::string plugin_class = "fcp_wrapper_veridialfcpx_3_7_0_0");
    ~simulated_host();
    simulated_host(const simulated_host&) = delete;
    simulated_host& operator=(const simulated_host&) = delete;

    /// From now on the effect does not get the interface with this protocol's name, or gets it again.
    void refuse_interface(const std::string& protocol, bool refused = true);
    /// From now on surfaces of analysed frames cannot be locked, or can again.
    void refuse_analysis_locks(bool refused = true);

    /// Creates the instance and asks for its properties and parameters. Fails when the effect refuses any of these.
    result<> create_instance();
    /// Adds the instance to the document: it reads its saved state.
    void add_to_document();

    /// The instance, an Objective-C object that this host owns; null before create_instance.
    void* get_plugin() const;
    /// Valid as long as the host; may be changed behind the effect's back.
    parameter_store& get_parameters();

    /// The timeline's current time; zero at first. Any thread.
    void set_playhead(CMTime time);
    CMTime get_playhead() const;
    /// From now on input time is timeline time plus this number of frames.
    void set_input_offset(int frames);
    /// Sets the timeline's frames per second; 30000/1001 until then.
    void set_rate(int numerator, int denominator);

    /// The user sets a value in the inspector. False when the store or the effect refuses it.
    bool edit(std::uint32_t id, store_value value);
    /// The user's undo and redo. The effect gets a parameterChanged: for each changed parameter. False when there is
    /// nothing to undo or redo.
    bool undo();
    bool redo();

    /// Renders a frame at the playhead: asks for the effect's state, then renders all tiles. Fails when the effect
    /// refuses a tile.
    result<rgba_picture> render(const rgba_picture& in, const tile_options& options = {});

    /// Sets the frame that an analysis finds under the playhead.
    void set_frame(rgba_picture frame, surface_format format);
    /// Waits until no analysis is running and returns the last one's result.
    result<> wait_for_analysis();

    /// The NSView of the state's control, which the caller owns; null when the effect gives none. Main thread.
    void* create_view();

    /// The document with all values, keyframes and the archived state.
    result<std::vector<std::uint8_t>> write_document() const;
    /// Takes values and keyframes from a document. A failure changes nothing. Call it between create_instance and
    /// add_to_document.
    result<> read_document(const std::vector<std::uint8_t>& bytes);

    /// Shared with the interfaces (simulator_core.h).
    struct core;

private:
    /// Undoes or redoes one step and sends the effect a parameterChanged: for every parameter that it changed.
    bool step(bool (parameter_store::*direction)());

    const std::unique_ptr<core> impl;
};

} // namespace ov1
