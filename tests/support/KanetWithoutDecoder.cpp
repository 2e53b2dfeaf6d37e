// A library named libKanet.so that loads but has no decoder symbol: the packet printer
// must fall back to the hex dump.
int kanetVersion() { return 1; }
