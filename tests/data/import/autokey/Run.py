keyboard.send_keys("x")
