int plain;
