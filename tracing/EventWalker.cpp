#include "tracing/EventWalker.h"

#include <algorithm>

namespace Orvane::tracing {

bool nsFromOrigin(const bt_clock_snapshot* snapshot, std::int64_t& ns) {
  return snapshot && bt_clock_snapshot_get_ns_from_origin(snapshot, &ns) ==
                         BT_CLOCK_SNAPSHOT_GET_NS_FROM_ORIGIN_STATUS_OK;
}

std::string traceNameOf(const bt_trace* trace) {
  if (const char* name = bt_trace_get_name(trace)) return name;
  const bt_value* host = bt_trace_borrow_environment_entry_value_by_name_const(trace, "hostname");
  return host && bt_value_is_string(host) ? bt_value_string_get(host) : "";
}

EventInfo eventInfoOf(const bt_message* message) {
  const bt_event* event = bt_message_event_borrow_event_const(message);
  EventInfo info;
  info.name = bt_event_class_get_name(bt_event_borrow_class_const(event));
  if (bt_message_event_borrow_stream_class_default_clock_class_const(message))
    info.hasTimestamp = nsFromOrigin(bt_message_event_borrow_default_clock_snapshot_const(message),
                                     info.timestampNs);
  return info;
}
namespace {

bool isByteArray(const bt_field_class* fieldClass) {
  if (!bt_field_class_type_is(bt_field_class_get_type(fieldClass), BT_FIELD_CLASS_TYPE_ARRAY))
    return false;
  const bt_field_class* element = bt_field_class_array_borrow_element_field_class_const(fieldClass);
  return bt_field_class_type_is(bt_field_class_get_type(element),
                                BT_FIELD_CLASS_TYPE_UNSIGNED_INTEGER) &&
         bt_field_class_integer_get_field_value_range(element) == 8;
}

bool prefersHex(const bt_field_class* fieldClass) {
  return bt_field_class_integer_get_preferred_display_base(fieldClass) ==
         BT_FIELD_CLASS_INTEGER_PREFERRED_DISPLAY_BASE_HEXADECIMAL;
}

} // namespace

EventWalker::Plan EventWalker::makePlan(const bt_field_class* structure,
                                        const bt_event_class* eventClass) const {
  const std::uint64_t count = bt_field_class_structure_get_member_count(structure);
  Plan plan(count);
  std::vector<std::string> lengthNames;
  for (std::uint64_t i = 0; i < count; ++i) {
    const bt_field_class_structure_member* member =
        bt_field_class_structure_borrow_member_by_index_const(structure, i);
    const std::string_view name = bt_field_class_structure_member_get_name(member);
    Member& planned = plan[i];
    planned.shown = name;
    if (!isByteArray(bt_field_class_structure_member_borrow_field_class_const(member))) continue;
    const std::string_view mapped =
        eventClass ? types_.find(bt_event_class_get_name(eventClass), name) : std::string_view();
    if (!mapped.empty()) {
      planned.id = mapped;
    } else if (const auto split = splitTypedName(name)) { // an unknown id reads as invalid
      planned.shown = split->shown;
      planned.id = split->id;
    } else {
      continue;
    }
    planned.kind = Member::Kind::Typed;
    planned.formatter = host::findFormatter(planned.id);
    lengthNames.push_back(lengthFieldName(name));
  }
  // babeltrace2 drops the leading '_' of CTF names, so a length field may read either way.
  for (Member& member : plan)
    if (member.kind == Member::Kind::Plain &&
        std::any_of(lengthNames.begin(), lengthNames.end(), [&](const std::string& length) {
          return member.shown == length || member.shown == std::string_view(length).substr(1);
        }))
      member.kind = Member::Kind::Hidden;
  return plan;
}

const EventWalker::Plan& EventWalker::planOf(const bt_field_class* structure,
                                             const bt_event_class* eventClass) {
  auto& byEvent = plans_[structure];
  auto found = byEvent.find(eventClass);
  if (found == byEvent.end())
    found = byEvent.emplace(eventClass, makePlan(structure, eventClass)).first;
  return found->second;
}

void EventWalker::walk(const bt_event* event, const EventInfo& info, FieldVisitor& visitor) {
  visitor.beginEvent(info);
  walkContext(event, visitor);
  if (const bt_field* payload = bt_event_borrow_payload_field_const(event)) {
    visitor.beginScope(Scope::Payload);
    walkMembers(payload, bt_event_borrow_class_const(event), visitor);
    visitor.endScope(Scope::Payload);
  }
  visitor.endEvent();
}

// The CPU the packet was recorded on (as LTTng puts it in the packet context), then the
// stream's and the event's own context fields, all in one group.
void EventWalker::walkContext(const bt_event* event, FieldVisitor& visitor) {
  const bt_field* cpu = nullptr;
  if (const bt_packet* packet = bt_event_borrow_packet_const(event))
    if (const bt_field* context = bt_packet_borrow_context_field_const(packet))
      cpu = bt_field_structure_borrow_member_field_by_name_const(context, "cpu_id");
  const bt_field* common = bt_event_borrow_common_context_field_const(event);
  const bt_field* specific = bt_event_borrow_specific_context_field_const(event);
  const auto hasMembers = [](const bt_field* structure) {
    return structure &&
           bt_field_class_structure_get_member_count(bt_field_borrow_class_const(structure)) > 0;
  };
  if (!cpu && !hasMembers(common) && !hasMembers(specific)) return;
  visitor.beginScope(Scope::Context);
  if (cpu) {
    visitor.member("cpu_id");
    walkValue(cpu, visitor);
  }
  if (common) walkMembers(common, nullptr, visitor);
  if (specific) walkMembers(specific, nullptr, visitor);
  visitor.endScope(Scope::Context);
}

void EventWalker::walkMembers(const bt_field* structure, const bt_event_class* eventClass,
                              FieldVisitor& visitor) {
  const Plan& plan = planOf(bt_field_borrow_class_const(structure), eventClass);
  for (std::size_t i = 0; i < plan.size(); ++i) {
    const Member& member = plan[i];
    if (member.kind == Member::Kind::Hidden) continue;
    const bt_field* field = bt_field_structure_borrow_member_field_by_index_const(structure, i);
    visitor.member(member.shown);
    if (member.kind == Member::Kind::Typed)
      walkTyped(field, member, visitor);
    else
      walkValue(field, visitor);
  }
}

void EventWalker::walkTyped(const bt_field* array, const Member& member, FieldVisitor& visitor) {
  const std::uint64_t length = bt_field_array_get_length(array);
  bytes_.resize(length);
  for (std::uint64_t i = 0; i < length; ++i)
    bytes_[i] = static_cast<unsigned char>(bt_field_integer_unsigned_get_value(
        bt_field_array_borrow_element_field_by_index_const(array, i)));
  const TypedResult result = decoder_.decode(member.id, member.formatter, bytes_);
  if (!result.valid) ++invalidFields_;
  visitor.typed(member.id, result, bytes_);
}

void EventWalker::walkValue(const bt_field* field, FieldVisitor& visitor) {
  const bt_field_class* fieldClass = bt_field_borrow_class_const(field);
  const bt_field_class_type type = bt_field_class_get_type(fieldClass);
  if (bt_field_class_type_is(type, BT_FIELD_CLASS_TYPE_UNSIGNED_INTEGER)) {
    visitor.unsignedInteger(bt_field_integer_unsigned_get_value(field), prefersHex(fieldClass));
  } else if (bt_field_class_type_is(type, BT_FIELD_CLASS_TYPE_SIGNED_INTEGER)) {
    visitor.signedInteger(bt_field_integer_signed_get_value(field), prefersHex(fieldClass));
  } else if (type == BT_FIELD_CLASS_TYPE_STRING) {
    visitor.string({bt_field_string_get_value(field), bt_field_string_get_length(field)});
  } else if (type == BT_FIELD_CLASS_TYPE_STRUCTURE) {
    visitor.beginStructure();
    walkMembers(field, nullptr, visitor);
    visitor.endStructure();
  } else if (bt_field_class_type_is(type, BT_FIELD_CLASS_TYPE_ARRAY)) {
    visitor.beginArray();
    const std::uint64_t length = bt_field_array_get_length(field);
    for (std::uint64_t i = 0; i < length; ++i) {
      visitor.element(i);
      walkValue(bt_field_array_borrow_element_field_by_index_const(field, i), visitor);
    }
    visitor.endArray();
  } else if (type == BT_FIELD_CLASS_TYPE_DOUBLE_PRECISION_REAL) {
    visitor.real(bt_field_real_double_precision_get_value(field));
  } else if (type == BT_FIELD_CLASS_TYPE_SINGLE_PRECISION_REAL) {
    visitor.real(bt_field_real_single_precision_get_value(field));
  } else if (type == BT_FIELD_CLASS_TYPE_BOOL) {
    visitor.boolean(bt_field_bool_get_value(field));
  } else if (type == BT_FIELD_CLASS_TYPE_BIT_ARRAY) {
    visitor.unsignedInteger(bt_field_bit_array_get_value_as_integer(field), true);
  } else if (bt_field_class_type_is(type, BT_FIELD_CLASS_TYPE_OPTION)) {
    const bt_field* value = bt_field_option_borrow_field_const(field);
    value ? walkValue(value, visitor) : visitor.none();
  } else if (bt_field_class_type_is(type, BT_FIELD_CLASS_TYPE_VARIANT)) {
    visitor.beginStructure();
    visitor.member(bt_field_class_variant_option_get_name(
        bt_field_variant_borrow_selected_option_class_const(field)));
    walkValue(bt_field_variant_borrow_selected_option_field_const(field), visitor);
    visitor.endStructure();
  } else {
    visitor.none();
  }
}

} // namespace Orvane::tracing
