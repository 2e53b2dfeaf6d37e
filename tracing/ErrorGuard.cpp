#include "tracing/ErrorGuard.h"

#include <algorithm>
#include <deque>
#include <memory>

namespace Orvane::tracing {
namespace {

/// One iterator's state: its upstream iterator, the messages it holds that did not fit
/// the downstream array, and whom to tell of an error taken.
struct Guard {
  bt_message_iterator* upstream = nullptr;
  std::deque<const bt_message*> pending;
  const ErrorListener* listener = nullptr;
  bool ended = false;

  ~Guard() {
    for (const bt_message* message : pending) bt_message_put_ref(message);
    bt_message_iterator_put_ref(upstream);
  }
};

Guard* guardOf(bt_self_message_iterator* self) {
  return static_cast<Guard*>(bt_self_message_iterator_get_data(self));
}

bt_component_class_initialize_method_status
initializeFilter(bt_self_component_filter* self, bt_self_component_filter_configuration*,
                 const bt_value*, void* listener) {
  bt_self_component_set_data(bt_self_component_filter_as_self_component(self), listener);
  if (bt_self_component_filter_add_input_port(self, "in", nullptr, nullptr) !=
          BT_SELF_COMPONENT_ADD_PORT_STATUS_OK ||
      bt_self_component_filter_add_output_port(self, "out", nullptr, nullptr) !=
          BT_SELF_COMPONENT_ADD_PORT_STATUS_OK)
    return BT_COMPONENT_CLASS_INITIALIZE_METHOD_STATUS_ERROR;
  return BT_COMPONENT_CLASS_INITIALIZE_METHOD_STATUS_OK;
}

bt_message_iterator_class_initialize_method_status
initializeIterator(bt_self_message_iterator* self, bt_self_message_iterator_configuration*,
                   bt_self_component_port_output*) {
  // A filter's self component is its self filter component: the library's own cast.
  auto* filter =
      reinterpret_cast<bt_self_component_filter*>(bt_self_message_iterator_borrow_component(self));
  auto guard = std::make_unique<Guard>();
  guard->listener = static_cast<const ErrorListener*>(
      bt_self_component_get_data(bt_self_message_iterator_borrow_component(self)));
  if (bt_message_iterator_create_from_message_iterator(
          self, bt_self_component_filter_borrow_input_port_by_index(filter, 0), &guard->upstream) !=
      BT_MESSAGE_ITERATOR_CREATE_FROM_MESSAGE_ITERATOR_STATUS_OK)
    return BT_MESSAGE_ITERATOR_CLASS_INITIALIZE_METHOD_STATUS_ERROR;
  bt_self_message_iterator_set_data(self, guard.release());
  return BT_MESSAGE_ITERATOR_CLASS_INITIALIZE_METHOD_STATUS_OK;
}

void finalizeIterator(bt_self_message_iterator* self) { delete guardOf(self); }

/// Hands the error on the thread, if any, to the listener.
void takeError(const Guard& guard) {
  if (const bt_error* error = bt_current_thread_take_error()) {
    (*guard.listener)(error);
    bt_error_release(error);
  }
}

/// Moves up to `capacity` messages of `from` (the pending ones first) into `to`.
std::uint64_t pass(Guard& guard, bt_message_array_const from, std::uint64_t count,
                   bt_message_array_const to, std::uint64_t capacity) {
  std::uint64_t passed = std::min<std::uint64_t>(capacity, guard.pending.size());
  std::copy_n(guard.pending.begin(), passed, to);
  guard.pending.erase(guard.pending.begin(), guard.pending.begin() + static_cast<long>(passed));
  const std::uint64_t direct = std::min(capacity - passed, count);
  std::copy_n(from, direct, to + passed);
  guard.pending.insert(guard.pending.end(), from + direct, from + count);
  return passed + direct;
}

bt_message_iterator_class_next_method_status next(bt_self_message_iterator* self,
                                                  bt_message_array_const messages,
                                                  std::uint64_t capacity, std::uint64_t* count) {
  Guard& guard = *guardOf(self);
  bt_message_array_const upstream = nullptr;
  std::uint64_t pulled = 0;
  if (guard.pending.empty() && !guard.ended) {
    switch (bt_message_iterator_next(guard.upstream, &upstream, &pulled)) {
    case BT_MESSAGE_ITERATOR_NEXT_STATUS_OK: break;
    case BT_MESSAGE_ITERATOR_NEXT_STATUS_AGAIN:
      return BT_MESSAGE_ITERATOR_CLASS_NEXT_METHOD_STATUS_AGAIN;
    case BT_MESSAGE_ITERATOR_NEXT_STATUS_MEMORY_ERROR:
      return BT_MESSAGE_ITERATOR_CLASS_NEXT_METHOD_STATUS_MEMORY_ERROR;
    default: guard.ended = true; break; // its end, or an error: the stream ends here
    }
    takeError(guard);
  }
  *count = pass(guard, upstream, pulled, messages, capacity);
  return *count > 0 ? BT_MESSAGE_ITERATOR_CLASS_NEXT_METHOD_STATUS_OK
                    : BT_MESSAGE_ITERATOR_CLASS_NEXT_METHOD_STATUS_END;
}

} // namespace

bt_component_class_filter* createErrorGuardClass() {
  bt_message_iterator_class* iterators = bt_message_iterator_class_create(next);
  if (!iterators) return nullptr;
  bt_message_iterator_class_set_initialize_method(iterators, initializeIterator);
  bt_message_iterator_class_set_finalize_method(iterators, finalizeIterator);
  bt_component_class_filter* filter = bt_component_class_filter_create("error-guard", iterators);
  bt_message_iterator_class_put_ref(iterators);
  if (filter) bt_component_class_filter_set_initialize_method(filter, initializeFilter);
  return filter;
}

} // namespace Orvane::tracing
