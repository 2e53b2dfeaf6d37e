// Marks the declarations that make up the libraries' binary interface.
//
// The plug-in and the host library are built with hidden visibility: a function or
// object is exported only when its declaration carries ORVANE_API. Everything else
// (helpers, name tables, layouts) stays internal and may change without notice; so do
// names outside the namespace Orvane, which abi/exports.map keeps out. abi/*.symbols
// lists what each library exports; a change there is an ABI change (abi/README.md).
//
// Mark a declaration in its header, before the return type, so that the defining
// translation unit and every caller see the same visibility:
//
//   ORVANE_API unsigned formatIp(const unsigned char* p, std::ostream& os);
//   class ORVANE_API MessageFormatter { ... };
//
// Declarations of the host's symbols are marked too: the plug-in then refers to them
// as symbols that another library defines, instead of expecting them inside itself.
#pragma once

/// Exports the declaration from the shared library that defines it (ELF default
/// visibility); in a library that only uses it, it is an ordinary import.
#define ORVANE_API __attribute__((visibility("default")))
